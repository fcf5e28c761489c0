// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/name_limit.h"

#include <algorithm>

#include "platform/text/utf8.h"

namespace lamp_optics {
namespace {

constexpr bool IsStorable(char32_t point) {
  return point == '\t' || (point >= ' ' && point != 0xFFFE && point != 0xFFFF);
}

/// A UTF-8 character's first byte.
constexpr bool IsBegin(char byte) { return (byte & 0xC0) != 0x80; }

}  // namespace

std::size_t CharacterCount(std::string_view text) noexcept {
  return static_cast<std::size_t>(std::ranges::count_if(text, IsBegin));
}

std::string_view CutName(std::string_view name) noexcept {
  std::size_t characters = 0;
  const auto isBeyond = [&characters](char byte) {
    return IsBegin(byte) && ++characters > kMaxNameCharacters;
  };
  const auto end = std::ranges::find_if(name, isBeyond);
  return name.substr(0, static_cast<std::size_t>(end - name.begin()));
}

bool DropUnstorable(std::string& name) {
  std::string kept;
  std::string_view rest = name;
  while (!rest.empty()) {
    const std::string_view before = rest;
    const char32_t point = platform::TakeCodePoint(rest);
    if (point == platform::kNoCodePoint) {
      rest.remove_prefix(1);
    } else if (IsStorable(point)) {
      kept += before.substr(0, before.size() - rest.size());
    }
  }
  const bool dropped = kept.size() < name.size();
  name = std::move(kept);
  return dropped;
}

}  // namespace lamp_optics
