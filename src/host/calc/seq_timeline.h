// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace SequenceTiming {

/// One stretch of a sequence: a wheel segment, or the spoke between two.
struct SeqSegment {
  std::string name;          ///< a segment's letter; a spoke's two letters
  std::uint16_t index1 = 0;  ///< the wheel revolution, from 0
  std::uint16_t index2 = 0;  ///< how often the name came before in that revolution
  double startUs = 0;        ///< from the timeline's time 0
  double lengthUs = 0;

  [[nodiscard]] double EndUs() const noexcept { return startUs + lengthUs; }
  [[nodiscard]] bool operator==(const SeqSegment&) const = default;
};

/// What passes the light path over a sequence, in order of time. Times are microseconds.
class SeqTimeline {
 public:
  SeqTimeline(double startUs, double lengthUs) noexcept : start_(startUs), length_(lengthUs) {}

  [[nodiscard]] double StartUs() const noexcept { return start_; }
  /// The whole sequence, gaps of the wheel included.
  [[nodiscard]] double LengthUs() const noexcept { return length_; }
  [[nodiscard]] double EndUs() const noexcept { return start_ + length_; }

  [[nodiscard]] const std::vector<SeqSegment>& Segments() const noexcept { return segments_; }
  [[nodiscard]] std::vector<SeqSegment>& Segments() noexcept { return segments_; }

 private:
  double start_;
  double length_;
  std::vector<SeqSegment> segments_;
};

}  // namespace SequenceTiming
