// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "pages/frame_rates/rules/rate_bin.h"
#include "pages/frame_rates/rules/sequence_range.h"

/// The rules of the bin table in the plainest possible words, step by step and without regard to
/// speed, for the real ones to be held against.
namespace literal {

using Count = std::uint32_t;
constexpr double K = 15000000;

using Bin = frame_rates::RateBin;
using Bins = std::vector<Bin>;
using Origin = frame_rates::BinOrigin;

inline Bin Make(double minRate, double maxRate, Count maxCount, Count minCount, Count multiplier,
                bool internal, Origin origin, std::size_t range = 0) {
  return {minRate, maxRate, maxCount, minCount, multiplier, internal, range, origin, {}, {}};
}

inline Bins Candidates(const std::vector<frame_rates::SequenceRange>& ranges) {
  Bins bins;
  for (std::size_t r = 0; r < ranges.size(); ++r) {
    const Count n = static_cast<Count>(std::floor(K / ranges[r].maxRateHz + 0.5));
    const auto& skip = ranges[r].skippedMultipliers;
    for (Count m = 1; m <= static_cast<Count>(ranges[r].maxMultiplier); ++m) {
      if (std::count(skip.begin(), skip.end(), static_cast<int>(m)) > 0) continue;
      double slowest = ranges[r].minRateHz / m;
      if (m >= 2 && 55.0 > ranges[r].minRateHz) slowest = 55.0 / m;
      bins.push_back(Make(slowest, K / (m * n), static_cast<Count>(std::floor(K / slowest + 0.5)),
                          m * n, m, false, Origin::kCandidate, r));
    }
  }
  return bins;
}

inline void Sort(Bins& bins) {
  for (std::size_t i = 1; i < bins.size(); ++i) {
    for (std::size_t j = i; j > 0 && bins[j - 1].minCount < bins[j].minCount; --j) {
      std::swap(bins[j - 1], bins[j]);
    }
  }
}

/// One scan; true when it removed a bin.
inline bool ScanOnce(Bins& bins) {
  for (std::size_t i = 1; i < bins.size(); ++i) {
    Bin& p = bins[i - 1];
    Bin& c = bins[i];
    if (!(p.minCount - 1 < c.maxCount && p.minCount > c.minCount)) continue;
    if (p.maxCount - p.minCount > c.maxCount - c.minCount) {
      c.maxCount = p.minCount - 1;
      c.minRateHz = K / c.maxCount;
      if (c.minCount >= c.maxCount) {
        bins.erase(bins.begin() + static_cast<std::ptrdiff_t>(i));
        return true;
      }
    } else {
      p.minCount = c.maxCount + 1;
      p.maxRateHz = K / p.minCount;
      if (p.minCount >= p.maxCount) {
        bins.erase(bins.begin() + static_cast<std::ptrdiff_t>(i - 1));
        return true;
      }
    }
  }
  return false;
}

inline void Resolve(Bins& bins) {
  while (ScanOnce(bins)) {
  }
}

inline void FillGaps(Bins& bins) {
  const Bins present = bins;
  for (std::size_t i = 1; i < present.size(); ++i) {
    const Bin& p = present[i - 1];
    const Bin& c = present[i];
    if (p.minCount - 1 > c.maxCount) {
      bins.push_back(Make(K / (p.minCount - 1), K / c.maxCount, p.minCount - 1, c.maxCount, 1, true,
                          Origin::kGap));
    }
  }
  const Count below = present[0].maxCount + 1;
  bins.push_back(
      Make(0.003492459655621196, K / below, 4294967295U, below, 1, true, Origin::kBottom));
  Sort(bins);
  const Bin top = bins.back();
  if (top.minCount != 1) {
    bins.push_back(
        Make(K / (top.minCount - 1), 15000000.0, top.minCount - 1, 0, 1, true, Origin::kTop));
  }
}

inline bool Force(Bins& bins) {
  int i = -1, j = -1;
  for (int k = static_cast<int>(bins.size()) - 1; k >= 0; --k) {
    const Bin& bin = bins[static_cast<std::size_t>(k)];
    if (bin.minCount <= 526316 && 526316 <= bin.maxCount) i = k;
    if (bin.minCount <= 476190 && 476190 <= bin.maxCount) j = k;
  }
  if (i < 0 || j < 0) return false;
  int start = i + 1;
  int count = std::max(0, j - i - 1);
  Bin& slow = bins[static_cast<std::size_t>(i)];
  if (slow.maxCount == 526316) {
    count++;
    start = i;
  } else if (526316 < slow.maxCount) {
    slow.minCount = 526317;
    slow.maxRateHz = K / 526317;
  }
  Bin& fast = bins[static_cast<std::size_t>(j)];
  if (fast.minCount == 476190) {
    count++;
  } else if (fast.minCount < 476190) {
    fast.maxCount = 476189;
    fast.minRateHz = K / 476189;
  }
  for (; count > 0 && start < static_cast<int>(bins.size()); --count) {
    bins.erase(bins.begin() + start);
  }
  bins.push_back(Make(28.5, 31.5, 526316, 476190, 2, false, Origin::kForced));
  return true;
}

inline Bins Table(const std::vector<frame_rates::SequenceRange>& ranges) {
  Bins bins = Candidates(ranges);
  Sort(bins);
  Resolve(bins);
  if (bins.empty()) return bins;
  literal::FillGaps(bins);
  if (!Force(bins)) return {};
  Sort(bins);
  return bins;
}

}  // namespace literal
