// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <vector>

#include "pages/frame_rates/rules/sequence_range.h"

namespace frame_rates {

/// Whether the range's item can be toggled: not when it holds the rate that is always selected.
[[nodiscard]] bool CanToggle(const SequenceRange& range) noexcept;

/// Whether the range's base rate is one of the chosen rates.
[[nodiscard]] bool IsSelected(const SequenceRange& range, std::span<const double> rates) noexcept;

/// Makes the stored choice fit the project's ranges when the page is first shown: a choice that is
/// empty, or that names a rate no range has, becomes the first range that cannot be deselected.
/// Without such a range it stays as it is. True when the choice changed.
[[nodiscard]] bool SelectDefault(std::span<const SequenceRange> ranges, std::vector<double>& rates);

/// The ranges that the rates choose, in list order.
[[nodiscard]] std::vector<SequenceRange> SelectedRanges(std::span<const SequenceRange> ranges,
                                                        std::span<const double> rates);

/// Stores the ticked ranges' base rates as the choice, in list order; `ticked` says it range by
/// range and is as long as `ranges`. True when the choice changed.
[[nodiscard]] bool StoreSelection(std::span<const SequenceRange> ranges,
                                  const std::vector<bool>& ticked, std::vector<double>& rates);

}  // namespace frame_rates
