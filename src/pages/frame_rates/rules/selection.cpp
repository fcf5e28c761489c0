// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/selection.h"

#include <algorithm>
#include <iterator>

namespace frame_rates {
namespace {

bool IsAvailable(double rate, std::span<const SequenceRange> ranges) {
  return std::ranges::any_of(
      ranges, [rate](const SequenceRange& range) { return range.baseRateHz == rate; });
}

}  // namespace

bool CanToggle(const SequenceRange& range) noexcept { return !range.Holds(kAlwaysSelectedHz); }

bool IsSelected(const SequenceRange& range, std::span<const double> rates) noexcept {
  return std::ranges::find(rates, range.baseRateHz) != rates.end();
}

bool SelectDefault(std::span<const SequenceRange> ranges, std::vector<double>& rates) {
  const bool fits =
      std::ranges::all_of(rates, [&ranges](double rate) { return IsAvailable(rate, ranges); });
  if (fits && !rates.empty()) {
    return false;
  }
  const auto fixed = std::ranges::find_if_not(ranges, CanToggle);
  if (fixed == ranges.end()) {
    return false;
  }
  rates.assign(1, fixed->baseRateHz);
  return true;
}

std::vector<SequenceRange> SelectedRanges(std::span<const SequenceRange> ranges,
                                          std::span<const double> rates) {
  std::vector<SequenceRange> selected;
  std::ranges::copy_if(ranges, std::back_inserter(selected),
                       [&rates](const SequenceRange& range) { return IsSelected(range, rates); });
  return selected;
}

bool StoreSelection(std::span<const SequenceRange> ranges, const std::vector<bool>& ticked,
                    std::vector<double>& rates) {
  std::vector<double> chosen;
  for (std::size_t item = 0; item < ranges.size(); ++item) {
    if (ticked[item]) {
      chosen.push_back(ranges[item].baseRateHz);
    }
  }
  const bool changed = chosen != rates;
  rates = std::move(chosen);
  return changed;
}

}  // namespace frame_rates
