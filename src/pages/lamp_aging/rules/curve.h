// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "pages/lamp_aging/rules/bin_table.h"

namespace lamp_aging {

/// One step of the drawn curve: the amplitude over the feedback values of a bin, both ends
/// included.
struct CurveStep {
  std::size_t bin = 0;
  int lower = 0;
  int upper = 0;
  double amplitude = 0;

  friend bool operator==(const CurveStep&, const CurveStep&) = default;
};

/// A step for each bin in order; a bin whose limits are crossed covers nothing and has none.
[[nodiscard]] std::vector<CurveStep> CurveSteps(const BinTable& table);

/// A span of feedback values, both ends included.
struct FeedbackSpan {
  int lower = 0;
  int upper = 0;

  friend bool operator==(const FeedbackSpan&, const FeedbackSpan&) = default;
};

/// Values of 0 to 255 that no bin covers.
[[nodiscard]] std::vector<FeedbackSpan> UncoveredValues(const BinTable& table);

/// Values that a bin shares with the one below it that reaches furthest.
struct SharedValues {
  std::size_t lowerBin = 0;
  std::size_t upperBin = 0;
  FeedbackSpan span;

  /// Neighbours have to touch, which is to share one value.
  [[nodiscard]] bool IsTouch() const noexcept {
    return upperBin == lowerBin + 1 && span.lower == span.upper;
  }
  friend bool operator==(const SharedValues&, const SharedValues&) = default;
};

[[nodiscard]] std::vector<SharedValues> FindSharedValues(const BinTable& table);

/// The bins that cover a feedback value, in order; none where it is uncovered.
[[nodiscard]] std::vector<CurveStep> Probe(const BinTable& table, int feedback);

/// What the probe finds, in words: the bins and their amplitudes, or that no bin covers the value.
[[nodiscard]] std::string ProbeText(const BinTable& table, int feedback);

}  // namespace lamp_aging
