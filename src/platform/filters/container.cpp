// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/container.h"

#include <zlib.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "platform/filters/compression_extractor.h"
#include "platform/filters/encryption_extractor.h"
#include "platform/filters/filter_error.h"
#include "platform/filters/filtering_istream.h"
#include "platform/filters/sink.h"
#include "platform/filters/source.h"

namespace platform::filters {
namespace {

using namespace std::string_view_literals;

// Not text in any encoding, and ending in what a transfer as text would change.
constexpr std::string_view kMagic = "\x8BSYSDEF\n"sv;
constexpr std::size_t kHeaderSize = 16;
constexpr char kVersion = 1;
constexpr char kCompressed = 1;
constexpr char kEnciphered = 2;

constexpr std::size_t kCompressionBuffer = 16384;
constexpr std::size_t kEncryptionBuffer = 4096;

std::string Checksum(std::string_view bytes) {
  const auto sum =
      ::crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size()));
  std::string text;
  for (int shift = 0; shift < 32; shift += 8) text += static_cast<char>(sum >> shift & 0xFF);
  return text;
}

std::string MakeHeader(const ContainerForm& form) {
  std::string header(kMagic);
  header += kVersion;
  header += static_cast<char>((form.isCompressed ? kCompressed : 0) |
                              (form.isEnciphered ? kEnciphered : 0));
  header += "\0\0"sv;
  return header + Checksum(header);
}

ContainerForm ParseHeader(std::string_view header) {
  if (header.size() < kHeaderSize) throw FilterError("the container is cut off");
  if (Checksum(header.substr(0, 12)) != header.substr(12))
    throw FilterError("the container's header is damaged");
  if (header[8] != kVersion)
    throw FilterError("the container is of version " +
                      std::to_string(static_cast<unsigned char>(header[8])) +
                      ", which this program does not know");
  const ContainerForm form = {(header[9] & kCompressed) != 0, (header[9] & kEnciphered) != 0};
  if (MakeHeader(form) != header || form == ContainerForm())
    throw FilterError("the container's form is not known");
  return form;
}

/// A stream over filters that it owns, or over the source itself.
class StackedStream final : public std::istream {
 public:
  explicit StackedStream(std::istream& source) : std::istream(source.rdbuf()), top_(&source) {
    exceptions(std::ios::badbit);
  }

  template <class Extractor, class... Arguments>
  void Push(std::size_t bufferSize, Arguments&&... arguments) {
    auto next = std::make_unique<FilteringIstream<Extractor>>(
        *top_, bufferSize, std::forward<Arguments>(arguments)...);
    lower_ = std::move(upper_);
    upper_ = std::move(next);
    top_ = upper_.get();
    rdbuf(top_->rdbuf());
  }

 private:
  std::istream* top_;
  // The upper one reads the lower one, so it goes first.
  std::unique_ptr<std::istream> lower_;
  std::unique_ptr<std::istream> upper_;
};

void Copy(std::istream& from, Sink& to) {
  std::array<char, kCompressionBuffer> buffer;
  while (const std::size_t got = ReadSource(from, buffer.data(), buffer.size()))
    to.Write({buffer.data(), got});
  to.Finish();
}

}  // namespace

std::optional<ContainerForm> ReadHeader(std::istream& source) {
  const auto start = source.tellg();
  std::string header(kHeaderSize, '\0');
  header.resize(ReadSource(source, header.data(), header.size()));
  if (header.starts_with(kMagic)) return ParseHeader(header);
  source.clear();
  if (!source.seekg(start)) throw FilterError("the file cannot be read");
  return std::nullopt;
}

std::unique_ptr<std::istream> OpenContainer(std::istream& source, const std::optional<Key>& key,
                                            std::size_t limit) {
  const auto form = ReadHeader(source).value_or(ContainerForm());
  auto stream = std::make_unique<StackedStream>(source);
  if (form.isEnciphered && !key) throw FilterError("the container is enciphered: a key is needed");
  if (form.isEnciphered)
    stream->Push<EncryptionExtractor>(kEncryptionBuffer, *key, MakeHeader(form));
  if (form.isCompressed) stream->Push<CompressionExtractor>(kCompressionBuffer, limit);
  return stream;
}

void PackContainer(std::istream& plain, std::ostream& to, bool compress,
                   const std::optional<Key>& key) {
  const ContainerForm form = {compress, key.has_value()};
  if (form == ContainerForm()) throw FilterError("a container is compressed or enciphered");
  auto sink = MakeStreamSink(to);
  sink->Write(MakeHeader(form));
  if (form.isEnciphered) sink = MakeEncryptionSink(std::move(sink), *key, MakeHeader(form));
  if (form.isCompressed) sink = MakeCompressionSink(std::move(sink));
  Copy(plain, *sink);
}

void UnpackContainer(std::istream& source, std::ostream& to, const std::optional<Key>& key,
                     std::size_t limit) {
  const auto start = source.tellg();
  if (!ReadHeader(source)) throw FilterError("this is no container");
  source.clear();
  source.seekg(start);
  const auto content = OpenContainer(source, key, limit);
  Copy(*content, *MakeStreamSink(to));
}

}  // namespace platform::filters
