// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/rules/wheel_total.h"

#include "host/text/leading_number.h"
#include "platform/text/number.h"

namespace illumination_config {
namespace {

/// A full turn, and what adding up decimal sizes may miss it by.
constexpr double kTurn = 360.0 + 1e-9;

}  // namespace

std::string DegreesText(double degrees) { return platform::FixedText(degrees, 2); }

double ReadDegrees(std::string_view text) {
  const auto number = leading_number::LeadingDouble(text);
  return number ? number->value : 0.0;
}

double WheelTotal(std::span<const SSegGeom> segments) {
  double total = 0;
  for (const SSegGeom& segment : segments) total += segment.Size;
  return total;
}

std::optional<std::string> TotalRefusal(std::size_t rows, double total) {
  if (rows == 0 || (total >= 0 && total <= kTurn)) return std::nullopt;
  return "Invalid Degree segmentation. Size overflows allowed 360 degrees.";
}

}  // namespace illumination_config
