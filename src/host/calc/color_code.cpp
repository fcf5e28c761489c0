// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/color_code.h"

#include <algorithm>
#include <array>

namespace color_code {
namespace {

constexpr std::array<Color, kCount> kTable{{
    {"Red", 'R', true},       {"Green", 'G', true},        {"Blue", 'B', true},
    {"White", 'W', true},     {"Cyan", 'C', true},         {"Magenta", 'M', true},
    {"Yellow", 'Y', true},    {"Black", 0, false},         {"White Spoke", 0, false},
    {"Cyan Spoke", 0, false}, {"Magenta Spoke", 0, false}, {"Yellow Spoke", 0, false},
    {"NDRed", 'r', true},     {"NDGreen", 'g', true},      {"NDBlue", 'b', true},
    {"NDWhite", 'w', true},   {"NDCyan", 'c', true},       {"NDMagenta", 'm', true},
    {"NDYellow", 'y', true},
}};

constexpr Color kNoColor{"", 0, false};

const Color& ColorOf(int code) noexcept {
  return code >= 0 && code < kCount ? kTable[static_cast<std::size_t>(code)] : kNoColor;
}

template <class Predicate>
int FirstCode(Predicate predicate) noexcept {
  const auto found = std::find_if(kTable.begin(), kTable.end(), predicate);
  return found == kTable.end() ? kNone : static_cast<int>(found - kTable.begin());
}

}  // namespace

std::span<const Color, kCount> Table() noexcept { return kTable; }

std::string_view Name(int code) noexcept { return ColorOf(code).name; }

int FromName(std::string_view name) noexcept {
  return FirstCode([&](const Color& color) { return color.name == name; });
}

char Letter(int code) noexcept { return ColorOf(code).letter; }

int FromLetter(char letter) noexcept {
  return letter == 0 ? kNone
                     : FirstCode([&](const Color& color) { return color.letter == letter; });
}

bool IsCounted(int code) noexcept { return ColorOf(code).counted; }

}  // namespace color_code
