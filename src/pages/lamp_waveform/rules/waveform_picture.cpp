// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/waveform_picture.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <span>
#include <unordered_map>

#include "host/calc/color_code.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/pulse_units.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

using SequenceTiming::SeqSegment;
using SequenceTiming::SeqTimeline;
using Rows = std::unordered_map<std::string, std::size_t>;

constexpr double kGainStep = 0.5;
constexpr double kLeastHighGain = 1.5;

Rows RowsByKey(std::span<const PulseInfo> pulses) {
  Rows rows;
  rows.reserve(pulses.size());
  for (std::size_t i = 0; i < pulses.size(); ++i) rows.try_emplace(pulses[i].m_strCWSeg, i);
  return rows;
}

/// Of segments of one key only the first has the entry.
std::optional<std::size_t> TakeRow(Rows& rows, const SeqSegment& segment) {
  const auto found = rows.find(SegmentKey(segment));
  if (found == rows.end()) return std::nullopt;
  const std::size_t row = found->second;
  rows.erase(found);
  return row;
}

StripPart PartOf(const SeqSegment& segment, Rows& rows) {
  StripPart part{segment.name, segment.startUs, segment.EndUs(), color_code::kNone, {}, {}};
  if (!segment.name.empty()) part.color = color_code::FromLetter(segment.name.front());
  if (CarriesPulse(segment)) {
    part.row = TakeRow(rows, segment);
  } else {
    part.neighbour = color_code::FromLetter(segment.name[1]);
  }
  return part;
}

std::string RowText(const PulseInfo& pulse, double rate) {
  if (!pulse.m_IsPulse) return pulse.m_strCWSeg + ": no pulse";
  const PulseValues values = ValuesOf(pulse, rate);
  const auto text = [](double value) { return platform::GeneralText(value); };
  return pulse.m_strCWSeg + ": " + text(values.amplitude) + " %, " + text(values.leadingEdge) +
         " + " + text(values.width) + " + " + text(values.trailingEdge) + " usecs";
}

/// Stored numbers need not be finite; what cannot be placed is not drawn.
bool CanBeDrawn(const DrawnPulse& pulse) {
  return std::ranges::all_of(pulse.points, [](const auto& point) {
    return std::isfinite(point.first) && std::isfinite(point.second);
  });
}

void FitRanges(const SeqTimeline& timeline, WaveformPicture& picture) {
  picture.startUs = std::min(timeline.StartUs(), picture.current.front().first);
  picture.endUs = std::max(timeline.EndUs(), picture.current.back().first);
  double low = 0, high = kLeastHighGain;
  for (const auto& [time, gain] : picture.current) {
    low = std::min(low, gain);
    high = std::max(high, gain);
  }
  picture.lowGain = std::floor(low / kGainStep) * kGainStep;
  picture.highGain = (std::floor(high / kGainStep) + 1) * kGainStep;
}

/// Pulses have their microseconds at the reference rate, which need not be the first that times
/// the segments.
SeqTimeline TimelineToDraw(const GUIInputsData& data, const PCGroup* group, double rate) {
  SeqTimeline timeline = SelectedTimeline(data);
  if (group == nullptr || !(rate > 0) || !IsTimed(timeline)) return timeline;
  return WheelTimelineAt(rate, data.ColorWheel, *group, data.CurrentSpinFactor);
}

}  // namespace

WaveformPicture MakePicture(const GUIInputsData& data) {
  WaveformPicture picture;
  const PCGroup* const group = SelectedGroup(data);
  const double rate = group ? ReferenceRate(*group) : 0.0;
  const SeqTimeline timeline = TimelineToDraw(data, group, rate);
  if (group == nullptr || timeline.Segments().empty() || !std::isfinite(timeline.EndUs())) {
    picture.note = "The color wheel has no sequence to draw.";
    return picture;
  }
  const std::span<const PulseInfo> pulses = ShownPulses(data);
  if (!(rate > 0)) picture.note = NoRateMessage(*group);
  Rows rows = RowsByKey(pulses);
  for (const SeqSegment& segment : timeline.Segments()) {
    picture.strip.push_back(PartOf(segment, rows));
  }
  for (const PulseInfo& pulse : pulses) {
    picture.rowTexts.push_back(rate > 0 ? RowText(pulse, rate) : pulse.m_strCWSeg);
  }
  picture.pulses = DrawPulses(pulses, timeline, *group);
  std::erase_if(picture.pulses, std::not_fn(CanBeDrawn));
  picture.current = LampCurrent(picture.pulses, timeline);
  FitRanges(timeline, picture);
  return picture;
}

std::optional<std::size_t> SegmentRowAt(const WaveformPicture& picture, double us) {
  const auto part = std::ranges::find_if(
      picture.strip, [us](const StripPart& each) { return each.startUs <= us && us < each.endUs; });
  return part == picture.strip.end() ? std::nullopt : part->row;
}

std::optional<std::size_t> RowAt(const WaveformPicture& picture, double us, double reachUs) {
  std::optional<std::size_t> row;
  double least = std::numeric_limits<double>::infinity();
  for (const DrawnPulse& pulse : picture.pulses) {
    if (us < pulse.StartUs() - reachUs || us > pulse.EndUs() + reachUs) continue;
    const double away = std::abs(us - (pulse.StartUs() + pulse.EndUs()) / 2);
    if (away >= least) continue;
    least = away;
    row = pulse.row;
  }
  return row ? row : SegmentRowAt(picture, us);
}

}  // namespace lamp_waveform
