// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "model/frame_rates_page_data.h"

namespace frame_rates {

/// Rates above this one are shown as open at the fast end.
inline constexpr double kDisplayLimitHz = 500.0;

/// A row of the shown table: neighbouring bins of one sequence range and sync mode in one. Apart
/// from its minimum rate it is the last of them.
struct DisplayRow {
  FreqBinData bin;
  std::size_t firstBin = 0;  ///< of the bins that it stands for, in the whole table
  std::size_t lastBin = 0;   ///< included

  friend bool operator==(const DisplayRow&, const DisplayRow&) = default;
};

/// Merges the neighbours. The second bin joins the first whatever its sync mode, so the bottom bin
/// never shows as a row of its own where one range serves both.
[[nodiscard]] std::vector<DisplayRow> MergeForDisplay(std::span<const FreqBinData> table);

/// "%.2f - %.2f Hz", or "%.2f+ Hz" above the display limit.
[[nodiscard]] std::string RateText(const FreqBinData& bin);

/// "LIV" for internal sync, "LEV" for the source's.
[[nodiscard]] std::string SyncText(const FreqBinData& bin);

}  // namespace frame_rates
