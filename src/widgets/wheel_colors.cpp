// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/wheel_colors.h"

#include <array>

#include "host/calc/color_code.h"

namespace GUI {

namespace {

constexpr QRgb kNoColor = 0xFF909090;

/// In code order.
constexpr std::array<QRgb, color_code::kCount> kColors{
    0xFFD8352A, 0xFF2FA044, 0xFF2C5FD3, 0xFFF5F5F2, 0xFF27B9CC, 0xFFC63DAF, 0xFFF3D121,
    0xFF1C1C1C, 0xFFDCDCD8, 0xFF7CCFDA, 0xFFD78CCB, 0xFFF3E387, 0xFF8C2720, 0xFF216B30,
    0xFF21438E, 0xFFABABA8, 0xFF1E7D89, 0xFF832C75, 0xFFA58F1C};

}  // namespace

QColor WheelColor(int colorCode) {
  const bool known = colorCode >= 0 && colorCode < color_code::kCount;
  return QColor::fromRgb(known ? kColors[static_cast<std::size_t>(colorCode)] : kNoColor);
}

QColor InkOnWheelColor(const QColor& background) {
  return qGray(background.rgb()) < 128 ? Qt::white : Qt::black;
}

}  // namespace GUI
