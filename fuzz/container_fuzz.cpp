// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <sstream>
#include <string>
#include <utility>

#include "platform/filters/compression_extractor.h"
#include "platform/filters/container.h"
#include "platform/filters/encryption_extractor.h"
#include "platform/filters/filter_error.h"
#include "platform/filters/filtering_istream.h"

using namespace platform::filters;

namespace {

constexpr std::size_t kLimit = 1 << 20;

const Key& TheKey() {
  static const Key key = Key::FromText(std::string(64, '7'));
  return key;
}

/// Reads a stream to its end or to what is wrong with it.
template <class Extractor, class... Arguments>
void ReadWith(const std::string& bytes, std::size_t bufferSize, Arguments&&... arguments) {
  std::istringstream in(bytes);
  try {
    FilteringIstream<Extractor> filtered(in, bufferSize, std::forward<Arguments>(arguments)...);
    filtered.ignore(std::numeric_limits<std::streamsize>::max());
  } catch (const FilterError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::ostringstream content;
  try {
    std::istringstream in(bytes);
    UnpackContainer(in, content, TheKey(), kLimit);
    if (content.str().size() > kLimit && content.str().size() > size) std::abort();
  } catch (const FilterError&) {
  }
  // A damaged header would keep what is behind it from being tried.
  ReadWith<CompressionExtractor>(bytes, 1 + size % 100, kLimit);
  ReadWith<EncryptionExtractor>(bytes, 1 + size % 100, TheKey(), "context");
  // Any bytes at all must come back from a container of theirs.
  std::istringstream plain(bytes);
  std::stringstream packed;
  std::ostringstream again;
  const bool isCompressed = size % 3 != 0;
  const bool isEnciphered = !isCompressed || size % 2 == 0;
  PackContainer(plain, packed, isCompressed, isEnciphered ? std::optional(TheKey()) : std::nullopt);
  UnpackContainer(packed, again, TheKey());
  if (again.str() != bytes) std::abort();
  return 0;
}
