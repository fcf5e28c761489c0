// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/source_text.h"

#include <algorithm>
#include <initializer_list>

#include "platform/text/code_page.h"
#include "platform/xml/names.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

using std::string_view;

constexpr string_view kMark = "\xEF\xBB\xBF";

/// An XML declaration, read strictly: the parser must not find another encoding in it than we do.
class Declaration {
 public:
  /// Reads the one at the front, if there is one. Throws XmlError when it breaks the rules.
  explicit Declaration(string_view bytes) : rest_(bytes) {
    if (!Take("<?xml") || rest_.starts_with('-')) return;
    const bool hasVersion = !Field("version").empty();
    encoding_ = Field("encoding");
    Field("standalone");
    TakeBlanks();
    if (!hasVersion || !Take("?>")) throw XmlError("1: the XML declaration cannot be read", 1);
    size_ = bytes.size() - rest_.size();
  }

  [[nodiscard]] std::size_t Size() const noexcept { return size_; }
  /// In lower case; empty when none is named.
  [[nodiscard]] const std::string& Encoding() const noexcept { return encoding_; }

 private:
  bool Take(string_view text) {
    if (!rest_.starts_with(text)) return false;
    rest_.remove_prefix(text.size());
    return true;
  }

  bool TakeBlanks() {
    const auto blanks = std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size());
    rest_.remove_prefix(blanks);
    return blanks > 0;
  }

  /// Takes `name="value"`, the value in lower case; takes nothing and is empty without it.
  std::string Field(string_view name) {
    const string_view before = rest_;
    std::string value;
    if (TakeBlanks() && Take(name)) {
      TakeBlanks();
      if (Take("=")) value = Quoted();
    }
    if (value.empty()) rest_ = before;
    return value;
  }

  std::string Quoted() {
    TakeBlanks();
    const string_view quote = rest_.substr(0, 1);
    if (!Take("\"") && !Take("'")) return {};
    std::string value;
    for (; !rest_.empty() && IsPlain(rest_[0]); rest_.remove_prefix(1))
      value += rest_[0] >= 'A' && rest_[0] <= 'Z' ? static_cast<char>(rest_[0] + 32) : rest_[0];
    return Take(quote) ? value : std::string();
  }

  static bool IsPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '-' || c == '_';
  }

  string_view rest_;
  std::size_t size_ = 0;
  std::string encoding_;
};

bool IsOneOf(string_view name, std::initializer_list<string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// The bytes in UTF-8, with blanks in the declaration's place: it would be wrong now.
std::string Convert(string_view bytes, std::size_t declarationSize) {
  std::string text = Windows1252ToUtf8(bytes);
  std::replace_if(
      text.begin(), text.begin() + static_cast<std::ptrdiff_t>(declarationSize),
      [](char c) { return c != '\n' && c != '\r'; }, ' ');
  return text;
}

}  // namespace

SourceText::SourceText(string_view bytes) : view_(bytes) {
  const bool isMarked = bytes.starts_with(kMark);
  const Declaration declaration(isMarked ? bytes.substr(kMark.size()) : bytes);
  const bool isPage =
      IsOneOf(declaration.Encoding(), {"us-ascii", "iso-8859-1", "latin1", "windows-1252"});
  if ((isPage && isMarked) || (!isPage && !IsOneOf(declaration.Encoding(), {"", "utf-8", "utf8"})))
    throw XmlError("1: the document's encoding is not UTF-8", 1);
  if (isPage) view_ = converted_ = Convert(bytes, declaration.Size());
  const std::size_t bad = FirstForbidden(view_);
  if (bad == string_view::npos) return;
  const long line = LineOf(view_, bad);
  throw XmlError(std::to_string(line) + ": bytes that are not text in UTF-8", line);
}

long LineOf(string_view bytes, std::size_t at) {
  const string_view before = bytes.substr(0, at);
  return 1 + std::count(before.begin(), before.end(), '\n');
}

}  // namespace platform::xml
