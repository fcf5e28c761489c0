// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/rate_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <iterator>
#include <utility>

namespace frame_rates {
namespace {

bool Overlap(const RateBin& slower, const RateBin& faster) noexcept {
  return slower.minCount - 1 < faster.maxCount && slower.minCount > faster.minCount;
}

// Unsigned on purpose: a bin whose ends are crossed counts as wider than any other.
std::uint32_t CountWidth(const RateBin& bin) noexcept { return bin.maxCount - bin.minCount; }

EndTrim TrimmedBy(const RateBin& neighbour) noexcept {
  return {EndTrim::By::kNeighbour, neighbour.range, neighbour.multiplier};
}

void MoveSlowEnd(RateBin& bin, std::uint32_t maxCount, EndTrim trim) noexcept {
  bin.maxCount = maxCount;
  bin.minRateHz = kClockHz / maxCount;
  bin.slowEnd = trim;
}

void MoveFastEnd(RateBin& bin, std::uint32_t minCount, EndTrim trim) noexcept {
  bin.minCount = minCount;
  bin.maxRateHz = kClockHz / minCount;
  bin.fastEnd = trim;
}

bool IsUsedUp(const RateBin& bin) noexcept { return bin.minCount >= bin.maxCount; }

RateBin InternalBin(BinOrigin origin, std::uint32_t maxCount, std::uint32_t minCount) noexcept {
  RateBin bin;
  bin.minRateHz = kClockHz / maxCount;
  bin.maxRateHz = kClockHz / std::max(minCount, 1U);
  bin.maxCount = maxCount;
  bin.minCount = minCount;
  bin.internalSync = true;
  bin.origin = origin;
  return bin;
}

RateBin ForcedBin() noexcept {
  RateBin bin;
  bin.minRateHz = kForcedMinHz;
  bin.maxRateHz = kForcedMaxHz;
  bin.maxCount = kForcedMaxCount;
  bin.minCount = kForcedMinCount;
  bin.multiplier = kForcedMultiplier;
  bin.origin = BinOrigin::kForced;
  return bin;
}

std::vector<bool> OfferedMultipliers(const SequenceRange& range) {
  const int largest = std::clamp(range.maxMultiplier, 0, kMaxMultiplier);
  std::vector<bool> offered(static_cast<std::size_t>(largest) + 1, true);
  offered[0] = false;
  for (const int skipped : range.skippedMultipliers) {
    if (skipped >= 0 && skipped <= largest) {
      offered[static_cast<std::size_t>(skipped)] = false;
    }
  }
  return offered;
}

FreqBinData ToFreqBin(const RateBin& bin, const SequenceRange& range) {
  FreqBinData stored;
  stored.MaxFrameCount = bin.maxCount;
  stored.MinFrameCount = bin.minCount;
  stored.LookBinIndex = static_cast<std::uint8_t>(range.index);
  stored.SequenceMultiplier = static_cast<std::uint8_t>(bin.multiplier);
  stored.IsLockToInternalVsync = bin.internalSync ? 1 : 0;
  stored.Enable3d = range.enable3d ? 1 : 0;
  stored.label = range.label;
  stored.minRateHz = bin.minRateHz;
  stored.maxRateHz = bin.maxRateHz;
  return stored;
}

}  // namespace

std::optional<std::uint32_t> FrameCount(double rateHz) noexcept {
  const double count = std::floor(kClockHz / rateHz + 0.5);
  if (!(count >= 1.0 && count < kLastCount)) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(count);
}

std::optional<RateBin> MakeCandidate(const SequenceRange& range, std::size_t place,
                                     std::uint32_t multiplier) noexcept {
  const std::optional<std::uint32_t> single = FrameCount(range.maxRateHz);
  const bool stretched = multiplier >= 2 && kFloorHz > range.minRateHz;
  const double minRateHz = (stretched ? kFloorHz : range.minRateHz) / multiplier;
  const std::optional<std::uint32_t> maxCount = FrameCount(minRateHz);
  if (!single || !maxCount || std::uint64_t{*single} * multiplier >= kLastCount) {
    return std::nullopt;
  }
  RateBin bin;
  bin.minCount = *single * multiplier;
  bin.maxRateHz = kClockHz / bin.minCount;
  bin.minRateHz = minRateHz;
  bin.maxCount = *maxCount;
  bin.multiplier = multiplier;
  bin.range = place;
  return bin;
}

std::vector<RateBin> MakeCandidates(std::span<const SequenceRange> ranges) {
  std::vector<RateBin> bins;
  for (std::size_t place = 0; place < ranges.size(); ++place) {
    const std::vector<bool> offered = OfferedMultipliers(ranges[place]);
    for (std::uint32_t multiplier = 1; multiplier < offered.size(); ++multiplier) {
      if (!offered[multiplier]) {
        continue;
      }
      if (const auto bin = MakeCandidate(ranges[place], place, multiplier)) {
        bins.push_back(*bin);
      }
    }
  }
  return bins;
}

void SortBins(std::vector<RateBin>& bins) {
  std::ranges::stable_sort(bins, std::ranges::greater{}, &RateBin::minCount);
}

// The rule scans all pairs from the start again after every removal. A pair that was looked at no
// longer overlaps, and what happens to its faster bin later only raises that bin's minimum count,
// which cannot make them overlap; so a new scan would change nothing before the removed bin. It is
// therefore enough to go on with the pair that the removal has brought together: each bin is
// appended once and removed at most once.
void ResolveOverlaps(std::vector<RateBin>& bins) {
  std::vector<RateBin> kept;
  kept.reserve(bins.size());
  for (RateBin& faster : bins) {
    bool dropped = false;
    while (!dropped && !kept.empty() && Overlap(kept.back(), faster)) {
      RateBin& slower = kept.back();
      if (CountWidth(slower) > CountWidth(faster)) {
        MoveSlowEnd(faster, slower.minCount - 1, TrimmedBy(slower));
        dropped = IsUsedUp(faster);
      } else {
        MoveFastEnd(slower, faster.maxCount + 1, TrimmedBy(faster));
        if (!IsUsedUp(slower)) {
          break;
        }
        kept.pop_back();
      }
    }
    if (!dropped) {
      kept.push_back(faster);
    }
  }
  bins = std::move(kept);
}

void FillGaps(std::vector<RateBin>& bins) {
  const std::size_t present = bins.size();
  for (std::size_t i = 1; i < present; ++i) {
    const std::uint32_t slowest = bins[i - 1].minCount - 1;
    const std::uint32_t fastest = bins[i].maxCount;
    if (slowest > fastest) {
      bins.push_back(InternalBin(BinOrigin::kGap, slowest, fastest));
    }
  }
  bins.push_back(InternalBin(BinOrigin::kBottom, kLastCount, bins.front().maxCount + 1));
  SortBins(bins);
  if (bins.back().minCount != 1) {
    bins.push_back(InternalBin(BinOrigin::kTop, bins.back().minCount - 1, 0));
  }
}

bool PlaceForcedBin(std::vector<RateBin>& bins) {
  const auto holding = [&bins](std::uint32_t count) {
    return std::ranges::find_if(bins, [count](const RateBin& bin) { return bin.Holds(count); });
  };
  const auto slow = holding(kForcedMaxCount);
  const auto fast = holding(kForcedMinCount);
  if (slow == bins.end() || fast == bins.end()) {
    return false;
  }
  const EndTrim trim{.by = EndTrim::By::kForcedBin};
  auto first = slow + 1;
  auto count = std::max<std::ptrdiff_t>(0, fast - slow - 1);
  if (slow->maxCount == kForcedMaxCount) {
    ++count;
    first = slow;
  } else {
    MoveFastEnd(*slow, kForcedMaxCount + 1, trim);
  }
  // One bin may hold both ends: it has just been cut, and is judged by what is left of it.
  if (fast->minCount == kForcedMinCount) {
    ++count;
  } else if (fast->minCount < kForcedMinCount) {
    MoveSlowEnd(*fast, kForcedMinCount - 1, trim);
  }
  bins.erase(first, first + std::min(count, bins.end() - first));
  bins.push_back(ForcedBin());
  return true;
}

RateTable ComputeRateTable(std::vector<SequenceRange> ranges) {
  RateTable table{std::move(ranges), {}};
  table.bins = MakeCandidates(table.ranges);
  SortBins(table.bins);
  ResolveOverlaps(table.bins);
  if (table.bins.empty()) {
    return table;
  }
  FillGaps(table.bins);
  if (!PlaceForcedBin(table.bins)) {
    std::cerr << "Can't find forced rate!\n";
    table.bins.clear();
    return table;
  }
  SortBins(table.bins);
  return table;
}

std::vector<FreqBinData> ToFreqBins(const RateTable& table) {
  std::vector<FreqBinData> stored;
  stored.reserve(table.bins.size());
  std::ranges::transform(table.bins, std::back_inserter(stored), [&table](const RateBin& bin) {
    return ToFreqBin(bin, table.ranges[bin.range]);
  });
  return stored;
}

}  // namespace frame_rates
