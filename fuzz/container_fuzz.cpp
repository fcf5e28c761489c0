// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstdint>
#include <cstdlib>
#include <sstream>

#include "platform/filters/container.h"
#include "platform/filters/filter_error.h"

using namespace platform::filters;

namespace {

constexpr std::size_t kLimit = 1 << 20;

const Key& TheKey() {
  static const Key key = Key::FromText(std::string(64, '7'));
  return key;
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
