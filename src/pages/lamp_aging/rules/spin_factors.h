// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class OstProject;

namespace lamp_aging {

/// A spin factor to choose: its number, and its text as the project writes it.
struct SpinFactor {
  double value = 0;
  std::string text;

  friend bool operator==(const SpinFactor&, const SpinFactor&) = default;
};

/// The number that a spin factor's text stands for; 0 for a text without one.
[[nodiscard]] double SpinFactorOf(std::string_view text) noexcept;

/// Appends the spin factors of the project's four groups that the list does not hold yet. A group
/// ends at its first absent key, and at the first number that is in the list already.
void AppendSpinFactors(const OstProject& project, std::vector<SpinFactor>& factors);

}  // namespace lamp_aging
