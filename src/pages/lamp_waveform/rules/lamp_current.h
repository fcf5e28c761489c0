// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <utility>
#include <vector>

#include "host/calc/seq_timeline.h"
#include "model/pc_group.h"
#include "model/pulse_info.h"

namespace lamp_waveform {

/// One pulse of a waveform at its place on the sequence timeline.
struct DrawnPulse {
  std::size_t row = 0;  ///< its place in the pulse list
  bool dark = false;    ///< its amplitude lies within the enabled dark-pulse limits
  /// Time in microseconds and gain of its corners, from gain 1 back to gain 1. The width ends with
  /// the pulse's segment and the trailing edge follows; a pulse that is longer than what lies
  /// before its segment's end begins before time 0.
  std::vector<std::pair<double, double>> points;

  [[nodiscard]] double StartUs() const { return points.front().first; }
  [[nodiscard]] double EndUs() const { return points.back().first; }
};

/// The waveform's pulses in list order, converted at the group's reference rate. Pulses without a
/// segment on the timeline, or without a duration, are not drawn; nor is any without a rate.
[[nodiscard]] std::vector<DrawnPulse> DrawPulses(std::span<const PulseInfo> pulses,
                                                 const SequenceTiming::SeqTimeline& timeline,
                                                 const PCGroup& group);

/// The lamp current over the whole sequence, time and gain: 1 where there is no pulse. Where pulses
/// overlap their lines follow each other in order of their begin.
[[nodiscard]] std::vector<std::pair<double, double>> LampCurrent(
    std::span<const DrawnPulse> pulses, const SequenceTiming::SeqTimeline& timeline);

}  // namespace lamp_waveform
