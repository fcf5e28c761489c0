// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

inline constexpr char32_t kNoCodePoint = 0xFFFFFFFF;

/// Takes one code point off the front of `text`, which is not empty; kNoCodePoint, and nothing
/// taken, where the bytes are not UTF-8 (overlong, cut, a surrogate or above U+10FFFF included).
constexpr char32_t TakeCodePoint(std::string_view& text) noexcept {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) {
    text.remove_prefix(1);
    return lead;
  }
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < size) return kNoCodePoint;
  char32_t point = lead & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return kNoCodePoint;
    point = point << 6 | (byte(i) & 0x3F);
  }
  constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  if (point < least[size] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
    return kNoCodePoint;
  text.remove_prefix(size);
  return point;
}

}  // namespace platform
