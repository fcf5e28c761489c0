// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <string>
#include <vector>

#include "host/calc/seq_timeline.h"
#include "model/gui_inputs_data.h"

/// The pulses of a waveform, one a segment of the wheel's sequence timeline.
namespace lamp_waveform {

/// The group type whose frames alternate between the eyes.
inline constexpr const char* k3dGroup = "3D";

/// The wheel's segment names in wheel order: what tells whether pulses were made for this wheel.
[[nodiscard]] std::string WheelSignature(const ColorWheelData& wheel);

/// The wheel's timeline at a spin factor and the group's first rate. Empty without a group or rate.
[[nodiscard]] SequenceTiming::SeqTimeline WheelTimeline(const ColorWheelData& wheel,
                                                        const PCGroup* group, double spin);
/// The same segments, timed at a rate of the caller's choice.
[[nodiscard]] SequenceTiming::SeqTimeline WheelTimelineAt(double rateHz,
                                                          const ColorWheelData& wheel,
                                                          const PCGroup& group, double spin);
/// The timeline of the data's selection.
[[nodiscard]] SequenceTiming::SeqTimeline SelectedTimeline(const GUIInputsData& data);
/// A wheel that cannot be timed at all, as opposed to one without segments, tells nothing of pulses
/// and spokes.
[[nodiscard]] bool IsTimed(const SequenceTiming::SeqTimeline& timeline) noexcept;

/// Spokes carry no pulse.
[[nodiscard]] bool CarriesPulse(const SequenceTiming::SeqSegment& segment) noexcept;
/// The text that names a timeline segment: its name and both indices.
[[nodiscard]] std::string SegmentKey(const SequenceTiming::SeqSegment& segment);

/// No pulse on every segment that can carry one.
[[nodiscard]] std::vector<PulseInfo> SeedPulses(const SequenceTiming::SeqTimeline& timeline);

/// The stored pulses brought to a timeline, in its order: a segment gets the first stored pulse of
/// its key, one without gets "no pulse". A second segment of a key whose pulse is taken gets no
/// entry; stored pulses without a segment are dropped. Time linear in both lists.
[[nodiscard]] std::vector<PulseInfo> DerivePulses(std::span<const PulseInfo> stored,
                                                  const SequenceTiming::SeqTimeline& timeline);

/// Derives the selected waveform's pulses anew when the wheel is not the one they were made for.
/// True when they were. Where the wheel cannot be timed, for want of a group type, a rate or a spin
/// factor above 0, all stays.
[[nodiscard]] bool FollowWheel(GUIInputsData& data);
/// The selected waveform's pulses as the table shows them after FollowWheel: none while they belong
/// to another wheel. The span stands until the data change.
[[nodiscard]] std::span<const PulseInfo> ShownPulses(const GUIInputsData& data);

/// Adds a waveform without pulses at the end of its pair's list.
void AddWaveform(GUIInputsData& data, const std::string& group, double spin,
                 const std::string& title);

}  // namespace lamp_waveform
