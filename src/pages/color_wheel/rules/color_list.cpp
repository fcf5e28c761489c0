// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/color_list.h"

#include "host/calc/color_code.h"

namespace color_wheel {
namespace {

/// Yellow before magenta, unlike the color codes.
constexpr std::string_view kListOrder = "RGBWCYMrgbwcmy";

}  // namespace

std::string ColorList(std::string_view supportedLetters) {
  std::string list;
  for (const char letter : kListOrder) {
    if (supportedLetters.find(letter) == std::string_view::npos) continue;
    list.append(color_code::Name(color_code::FromLetter(letter))).append("|");
  }
  return list.append(kNoColorChoice);
}

std::string ColorCell(std::string_view colorList, int color) {
  return std::string(colorList).append("|").append(color_code::Name(color));
}

}  // namespace color_wheel
