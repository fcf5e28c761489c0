// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/number_cell.h"

#include <cmath>
#include <limits>

#include "platform/text/number.h"

namespace GUI {

namespace {

/// Further digits would be lost: an integer cell holds what 64 bits hold.
bool IsBeyondIntegers(double value) {
  constexpr double limit = 9223372036854775808.0;
  return value >= limit || value < -limit;
}

}  // namespace

std::string NumberCellFormat::Format() const {
  return decimals == 0 ? "%d" : "%." + std::to_string(decimals) + "f";
}

std::string NumberCellFormat::TextOf(std::string_view text) const {
  if (decimals == 0) return std::to_string(platform::LeadingInteger(text));
  return platform::FixedText(platform::LeadingNumber(text), decimals);
}

std::string NumberCellFormat::BoundText(double bound) const {
  // Adding 0 turns a bound between -1 and 0 into "0" rather than "-0".
  if (decimals == 0) return platform::FixedText(std::trunc(bound) + 0.0, 0);
  return platform::FixedText(bound, decimals);
}

std::optional<std::string> NumberCellFormat::Refusal(std::string_view text) const {
  const double value = platform::LeadingNumber(text);
  const bool below = minimumSet && value < minimum;
  const bool above = maximumSet && value > maximum;
  if (below || above) {
    if (minimumSet && maximumSet) {
      return "Please enter a value between " + BoundText(minimum) + " and " + BoundText(maximum) +
             ".";
    }
    if (below) return "Please enter a value no less than " + BoundText(minimum) + ".";
    return "Please enter a value no greater than " + BoundText(maximum) + ".";
  }
  if (decimals == 0 && IsBeyondIntegers(value)) {
    using Limits = std::numeric_limits<long long>;
    return "Please enter an integer between " + std::to_string(Limits::min()) + " and " +
           std::to_string(Limits::max()) + ".";
  }
  return std::nullopt;
}

}  // namespace GUI
