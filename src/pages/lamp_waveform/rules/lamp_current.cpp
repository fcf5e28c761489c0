// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/lamp_current.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "host/calc/temporal_response.h"
#include "pages/lamp_waveform/rules/pulse_dialog.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/pulse_units.h"

namespace lamp_waveform {
namespace {

using SequenceTiming::SeqSegment;
using SequenceTiming::SeqTimeline;

/// The end of the first segment of each key.
std::unordered_map<std::string, double> SegmentEnds(const SeqTimeline& timeline) {
  std::unordered_map<std::string, double> ends;
  ends.reserve(timeline.Segments().size());
  for (const SeqSegment& segment : timeline.Segments()) {
    if (CarriesPulse(segment)) ends.try_emplace(SegmentKey(segment), segment.EndUs());
  }
  return ends;
}

std::vector<std::pair<double, double>> Corners(const PulseValues& values, double segmentEndUs) {
  TemporalResponse response;
  response.Load(values.leadingEdge, values.width, values.trailingEdge, values.amplitude / 100);
  const double start = segmentEndUs - values.leadingEdge - values.width;
  std::vector<std::pair<double, double>> points;
  for (std::size_t i = 0; i < response.Count(); ++i) {
    points.emplace_back(start + response.Times()[i], response.Gains()[i]);
  }
  return points;
}

}  // namespace

std::vector<DrawnPulse> DrawPulses(std::span<const PulseInfo> pulses, const SeqTimeline& timeline,
                                   const PCGroup& group) {
  std::vector<DrawnPulse> drawn;
  const double rate = ReferenceRate(group);
  if (!(rate > 0)) return drawn;
  const auto ends = SegmentEnds(timeline);
  for (std::size_t row = 0; row < pulses.size(); ++row) {
    const auto end = ends.find(pulses[row].m_strCWSeg);
    if (!pulses[row].m_IsPulse || end == ends.end()) continue;
    const PulseValues values = ValuesOf(pulses[row], rate);
    DrawnPulse pulse{row, false, Corners(values, end->second)};
    if (pulse.points.empty()) continue;
    pulse.dark = group.VIDarkPulseInfo.Enable && IsDark(group.VIDarkPulseInfo, values.amplitude);
    drawn.push_back(std::move(pulse));
  }
  return drawn;
}

std::vector<std::pair<double, double>> LampCurrent(std::span<const DrawnPulse> pulses,
                                                   const SeqTimeline& timeline) {
  std::vector<const DrawnPulse*> inTime;
  for (const DrawnPulse& pulse : pulses) inTime.push_back(&pulse);
  std::ranges::stable_sort(inTime, {}, &DrawnPulse::StartUs);
  std::vector<std::pair<double, double>> current;
  const double first = inTime.empty() ? timeline.StartUs() : inTime.front()->StartUs();
  current.emplace_back(std::min(timeline.StartUs(), first), 1.0);
  for (const DrawnPulse* pulse : inTime) {
    current.insert(current.end(), pulse->points.begin(), pulse->points.end());
  }
  current.emplace_back(std::max(timeline.EndUs(), current.back().first), 1.0);
  return current;
}

}  // namespace lamp_waveform
