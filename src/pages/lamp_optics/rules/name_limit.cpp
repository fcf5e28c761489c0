// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/name_limit.h"

#include "platform/text/utf8.h"

namespace lamp_optics {
namespace {

constexpr bool IsStorable(char32_t point) {
  return point == '\t' || (point >= ' ' && point != 0xFFFE && point != 0xFFFF);
}

}  // namespace

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
