// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/data/illum_characteristics.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<std::string_view, IllumCharacteristics::kTypeCount> kNames{
    "Red", "Green", "Blue", "Yellow", "Cyan", "Magenta", "White", "IR"};

}  // namespace

IllumCharacteristics::IllumType IllumCharacteristics::GetIllumTypeForStr(
    std::string_view name) noexcept {
  const auto found = std::ranges::find(kNames, name);
  return found == kNames.end() ? kNoIllum : static_cast<IllumType>(found - kNames.begin());
}

std::string_view IllumCharacteristics::GetStrForIllumType(std::int32_t type) noexcept {
  return type >= 0 && type < kTypeCount ? kNames[static_cast<std::size_t>(type)]
                                        : std::string_view();
}
