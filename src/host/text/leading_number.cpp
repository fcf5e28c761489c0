// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/text/leading_number.h"

#include <cmath>

#include "platform/text/number.h"

namespace leading_number {

std::optional<double> detail::OutOfRange(std::string_view text) noexcept {
  const double value = platform::LeadingNumber(text);
  return value == 0 ? std::optional(value) : std::nullopt;
}

std::optional<double> EnteredNumber(std::string_view text) noexcept {
  const double value = platform::LeadingNumber(text);
  if (value == 0) return platform::ParseNumber(text);
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace leading_number
