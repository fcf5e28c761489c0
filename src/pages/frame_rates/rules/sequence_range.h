// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>
#include <vector>

class OstProject;

namespace frame_rates {

/// The range that holds this rate is selected by default and cannot be deselected.
inline constexpr double kAlwaysSelectedHz = 60.0;
/// A range that holds this rate can show 3D.
inline constexpr double k3dHz = 120.0;
/// Ranges a project has when it does not say how many.
inline constexpr int kDefaultRangeCount = 6;
/// A bin names its range in 8 bits, so a project has no use for more.
inline constexpr int kMaxRangeCount = 256;

/// A range of sequence rates that the device can run, as the project's keys give it.
struct SequenceRange {
  std::string label;  ///< base rate as the project writes it
  int index = 0;      ///< place in the list of ranges, from 0
  double baseRateHz = 0;
  double minRateHz = 0;
  double maxRateHz = 0;
  int maxMultiplier = 0;  ///< largest sequence multiplier to offer
  bool enable3d = false;
  std::vector<int> skippedMultipliers;  ///< multipliers not to offer

  [[nodiscard]] bool Holds(double rateHz) const noexcept {
    return minRateHz <= rateHz && rateHz <= maxRateHz;
  }
};

/// The project's ranges in list order, up to the first whose base rate is 0 or absent, and at most
/// kMaxRangeCount.
[[nodiscard]] std::vector<SequenceRange> ReadSequenceRanges(const OstProject& project);

/// The comma-separated parts, each by its leading decimal integer (0 for a part without one).
[[nodiscard]] std::vector<int> ParseSkipList(std::string_view text);

/// The range's line in the check list, such as "60.00 Hz (47.50 - 63.00 Hz)".
[[nodiscard]] std::string ItemText(const SequenceRange& range);

}  // namespace frame_rates
