// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/display.h"

#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace frame_rates {

std::vector<DisplayRow> MergeForDisplay(std::span<const FreqBinData> table) {
  std::vector<DisplayRow> rows;
  for (std::size_t i = 0; i < table.size(); ++i) {
    DisplayRow row{table[i], i, i};
    const bool sameRange = i > 0 && table[i].label == rows.back().bin.label;
    const bool sameSync = i == 1 || (i > 0 && table[i].IsLockToInternalVsync ==
                                                  rows.back().bin.IsLockToInternalVsync);
    if (sameRange && sameSync) {
      row.bin.minRateHz = rows.back().bin.minRateHz;
      row.firstBin = rows.back().firstBin;
      rows.back() = std::move(row);
    } else {
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

std::string RateText(const FreqBinData& bin) {
  const std::string slowest = platform::FixedText(bin.minRateHz, 2);
  if (bin.maxRateHz > kDisplayLimitHz) {
    return platform::Fill("%.2f+ Hz", {slowest});
  }
  return platform::Fill("%.2f - %.2f Hz", {slowest, platform::FixedText(bin.maxRateHz, 2)});
}

std::string SyncText(const FreqBinData& bin) { return bin.IsLockToInternalVsync ? "LIV" : "LEV"; }

}  // namespace frame_rates
