// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "model/frame_rates_page_data.h"
#include "pages/frame_rates/rules/rate_bin.h"
#include "pages/frame_rates/rules/sequence_range.h"

namespace frame_rates {

/// The slowest source rate that a range's multiples of 2 and above are stretched to reach.
inline constexpr double kFloorHz = 55.0;
/// A bin stores its multiplier in 8 bits, so larger ones are not offered.
inline constexpr int kMaxMultiplier = 255;
/// The bin that every table holds.
inline constexpr double kForcedMinHz = 28.5;
inline constexpr double kForcedMaxHz = 31.5;
inline constexpr std::uint32_t kForcedMaxCount = 526316;
inline constexpr std::uint32_t kForcedMinCount = 476190;
inline constexpr std::uint32_t kForcedMultiplier = 2;

/// The selected ranges and the bins that follow from them; RateBin::range is a place in `ranges`.
struct RateTable {
  std::vector<SequenceRange> ranges;
  std::vector<RateBin> bins;  ///< in ascending rate order
};

/// The whole computation: candidates, overlaps, gaps, forced bin. No bins when there is no
/// candidate or the forced bin has no place; the latter is also said on the standard error stream.
[[nodiscard]] RateTable ComputeRateTable(std::vector<SequenceRange> ranges);

/// The bins as they are stored, one for one.
[[nodiscard]] std::vector<FreqBinData> ToFreqBins(const RateTable& table);

// The steps, in their order. Each can be read, and tested, on its own.

/// The rate's frame count, rounded to the nearest tick. Nothing for a rate whose count is not from
/// 1 to kLastCount - 1: the counts above the slowest candidate belong to the bottom bin.
[[nodiscard]] std::optional<std::uint32_t> FrameCount(double rateHz) noexcept;

/// One bin of the range: m repetitions a source frame, locked to the source. Nothing when its
/// counts cannot be counted. `place` is the range's place among the selected ones.
[[nodiscard]] std::optional<RateBin> MakeCandidate(const SequenceRange& range, std::size_t place,
                                                   std::uint32_t multiplier) noexcept;

/// One bin for each range and each multiplier that it offers.
[[nodiscard]] std::vector<RateBin> MakeCandidates(std::span<const SequenceRange> ranges);

/// By ascending rate, that is descending minimum count; equal ones keep their order.
void SortBins(std::vector<RateBin>& bins);

/// Of two neighbours that overlap the wider one gives way; a bin that has nothing left is removed.
/// Takes sorted bins.
void ResolveOverlaps(std::vector<RateBin>& bins);

/// Fills the holes between neighbours, and what lies below the first and above the last bin, with
/// bins on internal sync served by the first range. Takes at least one bin; leaves them sorted.
void FillGaps(std::vector<RateBin>& bins);

/// Makes room for the forced bin and appends it. False, and nothing is changed, when no bin holds
/// one of its ends.
[[nodiscard]] bool PlaceForcedBin(std::vector<RateBin>& bins);

}  // namespace frame_rates
