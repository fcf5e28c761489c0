// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace frame_rates {

/// Frame periods are counted in ticks of this clock: count = kClockHz / rate.
inline constexpr double kClockHz = 15000000.0;
inline constexpr std::uint32_t kLastCount = std::numeric_limits<std::uint32_t>::max();

/// How a bin came into the table.
enum class BinOrigin {
  kCandidate,  ///< a sequence range run with a multiplier
  kGap,        ///< fills the hole between two candidates
  kBottom,     ///< everything slower than the slowest candidate
  kTop,        ///< everything faster than the fastest candidate
  kForced      ///< the bin that every table holds
};

/// What last moved one end of a bin after it was made.
struct EndTrim {
  enum class By { kNothing, kNeighbour, kForcedBin };
  By by = By::kNothing;
  std::size_t range = 0;         ///< of the neighbour, as RateBin::range
  std::uint32_t multiplier = 0;  ///< of the neighbour
};

/// A source frame-rate bin while the table is made. The slow end is the minimum rate and maximum
/// count, the fast end the maximum rate and minimum count.
struct RateBin {
  double minRateHz = 0;
  double maxRateHz = 0;
  std::uint32_t maxCount = 0;
  std::uint32_t minCount = 0;
  std::uint32_t multiplier = 1;
  bool internalSync = false;
  std::size_t range = 0;  ///< place of the serving range among the selected ones
  BinOrigin origin = BinOrigin::kCandidate;
  EndTrim slowEnd;
  EndTrim fastEnd;

  [[nodiscard]] bool Holds(std::uint32_t count) const noexcept {
    return minCount <= count && count <= maxCount;
  }
};

}  // namespace frame_rates
