// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/text/parse.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>

#include "platform/text/code_page.h"

namespace {

constexpr std::size_t kChunkBytes = std::size_t{1} << 16;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Objects, not functions, so that the algorithms take them in.
constexpr auto kIsBlank = [](char c) { return c == ' ' || c == '\t'; };
constexpr auto kIsSeparator = [](char c) {
  return c == ' ' || c == '\t' || c == ',' || c == ';' || c == '=';
};

bool IsAllBlank(std::string_view text) { return std::all_of(text.begin(), text.end(), kIsBlank); }

bool IsAscii(std::string_view text) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080u;
  std::uint64_t all = 0;
  std::size_t at = 0;
  for (; at + sizeof all <= text.size(); at += sizeof all) {
    std::uint64_t eight;
    std::memcpy(&eight, text.data() + at, sizeof eight);
    all |= eight;
  }
  for (; at < text.size(); ++at) all |= static_cast<unsigned char>(text[at]) & 0x80u;
  return (all & kHighBits) == 0;
}

std::string_view WithoutComment(std::string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool slashes = line[i] == '/' && i + 1 < line.size() && line[i + 1] == '/';
    if (line[i] == '#' || slashes) return line.substr(0, i);
  }
  return line;
}

}  // namespace

Parse::Parse(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    fault_ = "no regular file: " + file.string();
    return;
  }
  input_ = std::make_unique<std::ifstream>(file, std::ios::binary);
  if (!*input_) fault_ = "cannot be read: " + file.string();
}

Parse::Parse(std::unique_ptr<std::istream> text) : input_(std::move(text)) {
  origin_ = std::max<std::streamoff>(0, input_->tellg());
}

Parse::~Parse() = default;

bool Parse::getFirstLine(std::string_view& line) {
  if (line_number_ != 0) {
    input_->clear();
    input_->seekg(origin_);
    begin_ = end_ = line_number_ = 0;
    fault_.clear();
  }
  return getNextLine(line);
}

bool Parse::getNextLine(std::string_view& line) {
  std::string_view raw;
  while (NextRawLine(raw)) {
    const std::string_view clean = Clean(raw);
    if (remove_blank_lines_ && IsAllBlank(clean)) continue;
    if (trace_ != nullptr) *trace_ << clean << '\n';
    line = clean;
    return true;
  }
  return false;
}

/// The next line without its end, as bytes.
bool Parse::NextRawLine(std::string_view& line) {
  std::size_t searched = begin_;
  const void* found = nullptr;
  while (found == nullptr) {
    found = std::memchr(buffer_.data() + searched, '\n', end_ - searched);
    if (found != nullptr) break;
    const std::size_t held = end_ - begin_;
    if (held > kMaxLineBytes) {
      fault_ = "line " + std::to_string(line_number_ + 1) + " is too long";
      return false;
    }
    const bool more = FillBuffer();
    searched = begin_ + held;
    if (!more) break;
  }
  if (found == nullptr && (begin_ == end_ || !fault_.empty())) return false;
  const std::size_t end =
      found == nullptr ? end_
                       : static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data());
  line = std::string_view(buffer_).substr(begin_, end - begin_);
  begin_ = found == nullptr ? end : end + 1;
  if (line_number_++ == 0 && line.starts_with(kByteOrderMark)) {
    line.remove_prefix(kByteOrderMark.size());
  }
  if (line.ends_with('\r')) line.remove_suffix(1);
  return true;
}

/// Reads on behind what the buffer still holds. False at the end of the text.
bool Parse::FillBuffer() {
  if (!fault_.empty() || !*input_) return false;
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= begin_;
  begin_ = 0;
  if (buffer_.size() < end_ + kChunkBytes) buffer_.resize(end_ + kChunkBytes);
  input_->read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
  const auto count = static_cast<std::size_t>(input_->gcount());
  if (input_->bad()) fault_ = "reading failed behind line " + std::to_string(line_number_);
  end_ += count;
  const std::string_view held = std::string_view(buffer_).substr(0, end_);
  plain_ = IsAscii(held) && held.find('#') == held.npos && held.find('/') == held.npos;
  return count > 0;
}

std::string_view Parse::Clean(std::string_view raw) {
  if (plain_) return raw;
  if (!IsAscii(raw) && !platform::IsUtf8(raw)) {
    converted_ = platform::ToUtf8(raw);
    raw = converted_;
  }
  return remove_comments_ ? WithoutComment(raw) : raw;
}

void Parse::stripFirstWord(std::string_view line, std::string_view& firstWord,
                           std::string_view& rest) noexcept {
  const char* const end = line.data() + line.size();
  const char* const wordBegin = std::find_if_not(line.data(), end, kIsBlank);
  const char* const wordEnd = std::find_if(wordBegin, end, kIsSeparator);
  const char* const restBegin = std::find_if_not(wordEnd, end, kIsSeparator);
  const char* restEnd = end;
  while (restEnd != restBegin && kIsBlank(restEnd[-1])) --restEnd;
  firstWord = std::string_view(wordBegin, static_cast<std::size_t>(wordEnd - wordBegin));
  rest = std::string_view(restBegin, static_cast<std::size_t>(restEnd - restBegin));
}
