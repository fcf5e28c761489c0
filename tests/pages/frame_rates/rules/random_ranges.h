// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <random>
#include <string>
#include <vector>

#include "pages/frame_rates/rules/sequence_range.h"

/// Sets of sequence ranges to hold rules against.
namespace random_ranges {

using frame_rates::SequenceRange;
using Source = std::mt19937;

inline double Between(Source& source, double low, double high) {
  return std::uniform_real_distribution(low, high)(source);
}

inline int Whole(Source& source, int low, int high) {
  return std::uniform_int_distribution(low, high)(source);
}

/// Mostly any rate; often one that meets another range's, or the forced bin's, to the last count.
inline double Rate(Source& source) {
  static constexpr std::array kMeeting{28.5, 31.5, 30.0, 47.5, 55.0, 57.0,  60.0, 62.9999,
                                       63.0, 72.0, 94.5, 95.0, 96.0, 120.0, 126.0};
  return Whole(source, 0, 2) == 0 ? kMeeting[static_cast<std::size_t>(Whole(source, 0, 14))]
                                  : Between(source, 20.0, 260.0);
}

inline SequenceRange Range(Source& source, int index) {
  SequenceRange range;
  range.index = index;
  std::tie(range.minRateHz, range.maxRateHz) = std::minmax({Rate(source), Rate(source)});
  range.baseRateHz = range.maxRateHz;
  range.label = std::to_string(index);
  range.maxMultiplier = Whole(source, 0, 40) == 0 ? 255 : Whole(source, 0, 9);
  range.enable3d = range.Holds(120.0);
  for (int skipped = Whole(source, 0, 3); skipped > 0; --skipped) {
    range.skippedMultipliers.push_back(Whole(source, -1, 11));
  }
  return range;
}

inline std::vector<SequenceRange> Set(Source& source) {
  std::vector<SequenceRange> ranges;
  const int size = Whole(source, 1, 6);
  for (int index = 0; index < size; ++index) {
    ranges.push_back(Range(source, index));
  }
  return ranges;
}

}  // namespace random_ranges
