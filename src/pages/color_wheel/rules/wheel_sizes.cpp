// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/wheel_sizes.h"

#include "host/calc/color_code.h"
#include "host/text/leading_number.h"
#include "platform/text/number.h"

namespace color_wheel {
namespace {

/// A full turn, and what adding up decimal sizes may miss it by.
constexpr double kTurn = 360.0 + 1e-9;
/// The longest text that the spoke size is read from.
constexpr std::size_t kSpokeTextLength = 98;

}  // namespace

double CountedTotal(std::span<const SSegGeom> segments) {
  double total = 0;
  for (const SSegGeom& segment : segments) {
    if (color_code::IsCounted(segment.Color)) total += segment.Size;
  }
  return total;
}

std::string TotalText(double total) { return platform::FixedText(total, 2); }

std::optional<std::string> TotalFault(double total) {
  if (!(total > kTurn)) return std::nullopt;
  return "Error:  The sum of all color wheel segments must be less than or equal to 360 degrees.";
}

std::string SpokeSizeText(double degrees) { return platform::FixedText(degrees, 3); }

bool StoreSpokeSize(std::string_view text, ColorWheelData& wheel) {
  if (text == SpokeSizeText(wheel.SpokeSize)) return false;
  const std::optional<double> size =
      leading_number::EnteredNumber(text.substr(0, kSpokeTextLength));
  if (!size || *size > kMaxSpokeDegrees || *size == wheel.SpokeSize) return false;
  wheel.SpokeSize = *size;
  return true;
}

}  // namespace color_wheel
