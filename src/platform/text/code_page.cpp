// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/text/code_page.h"

#include <array>

#include "platform/text/utf8.h"

namespace platform {
namespace {

// 0x80 to 0x9F of Windows-1252; from 0xA0 on the page is Latin-1.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& text, char16_t point) {
  if (point < 0x80) {
    text += static_cast<char>(point);
  } else if (point < 0x800) {
    text += static_cast<char>(0xC0 | point >> 6);
    text += static_cast<char>(0x80 | (point & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | point >> 12);
    text += static_cast<char>(0x80 | (point >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (point & 0x3F));
  }
}

}  // namespace

bool IsUtf8(std::string_view bytes) noexcept {
  while (!bytes.empty())
    if (TakeCodePoint(bytes) == kNoCodePoint) return false;
  return true;
}

std::string Windows1252ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 4);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte);
  }
  return text;
}

std::string ToUtf8(std::string_view bytes) {
  return IsUtf8(bytes) ? std::string(bytes) : Windows1252ToUtf8(bytes);
}

}  // namespace platform
