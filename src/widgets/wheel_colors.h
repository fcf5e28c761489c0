// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QColor>

namespace GUI {

/// The color that stands for a color code (host/calc/color_code.h) in pictures; grey for no color
/// and for numbers that are no code. Neutral-density colors are darker than their plain ones.
[[nodiscard]] QColor WheelColor(int colorCode);

/// Black or white, whichever can be read on that background.
[[nodiscard]] QColor InkOnWheelColor(const QColor& background);

}  // namespace GUI
