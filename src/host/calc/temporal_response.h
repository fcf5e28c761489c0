// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <vector>

/// The lamp's gain over the time of one drive pulse: corner points to be joined by lines.
class TemporalResponse {
 public:
  /// The gain leaves 1 at time 0, has the amplitude from the end of the leading edge to the end of
  /// the width, and is 1 again at the end of the trailing edge. Durations are microseconds. Points
  /// of equal time and gain appear once; there are none when all three durations are 0.
  void Load(double leadingEdgeUs, double widthUs, double trailingEdgeUs, double amplitude);

  [[nodiscard]] std::size_t Count() const noexcept { return times_.size(); }
  /// Microseconds from the pulse's begin, as many as Count().
  [[nodiscard]] std::span<const double> Times() const noexcept { return times_; }
  /// 1 is the lamp without a pulse.
  [[nodiscard]] std::span<const double> Gains() const noexcept { return gains_; }

 private:
  void Add(double time, double gain);

  std::vector<double> times_;
  std::vector<double> gains_;
};
