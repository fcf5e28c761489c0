// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

namespace color_wheel {

/// What a list shows for no color.
inline constexpr std::string_view kNoColorChoice = "None";

/// The choices of the color column, joined by "|": the colors whose letter is among the supported
/// ones, in the list's own order, then "None". Black and the spoke colors are never offered.
[[nodiscard]] std::string ColorList(std::string_view supportedLetters);

/// A color cell: the choices, then the color that is chosen.
[[nodiscard]] std::string ColorCell(std::string_view colorList, int color);

}  // namespace color_wheel
