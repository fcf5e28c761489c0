// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_list.h"

#include <string_view>
#include <unordered_map>

#include "host/calc/sequence_timing_common.h"
#include "pages/lamp_waveform/rules/selection.h"

namespace lamp_waveform {
namespace {

using SequenceTiming::SeqSegment;
using SequenceTiming::SeqTimeline;

/// A stored pulse, until a segment has taken it.
struct Stored {
  const PulseInfo* pulse;
  bool taken = false;
};

PulseInfo NoPulse(std::string key) { return PulseInfo(false, std::move(key), 1.0, 0.0, 0.0, 0.0); }

}  // namespace

std::string WheelSignature(const ColorWheelData& wheel) {
  std::string signature;
  for (const CWSeg& segment : CWSegsOf(wheel.Segments)) signature += segment.getName();
  return signature;
}

SeqTimeline WheelTimeline(const ColorWheelData& wheel, const PCGroup* group, double spin) {
  if (group == nullptr || group->Rates.empty()) return SeqTimeline(0.0, 0.0);
  return WheelTimelineAt(group->Rates.front(), wheel, *group, spin);
}

SeqTimeline WheelTimelineAt(double rateHz, const ColorWheelData& wheel, const PCGroup& group,
                            double spin) {
  return SequenceTiming_Common::GetSeqTimeline(
      CWSegsOf(wheel.Segments), spin, rateHz, wheel.SpokeSize, 0, 0.0, rateHz, false,
      group.Title == k3dGroup, 0, SeqTimeline(0.0, 0.0), group.Title);
}

SeqTimeline SelectedTimeline(const GUIInputsData& data) {
  return WheelTimeline(data.ColorWheel, SelectedGroup(data), data.CurrentSpinFactor);
}

bool IsTimed(const SeqTimeline& timeline) noexcept { return timeline.LengthUs() > 0; }

bool CarriesPulse(const SeqSegment& segment) noexcept { return segment.name.size() < 2; }

std::string SegmentKey(const SeqSegment& segment) {
  return segment.name + std::to_string(segment.index1) + std::to_string(segment.index2);
}

std::vector<PulseInfo> SeedPulses(const SeqTimeline& timeline) {
  return DerivePulses({}, timeline);
}

std::vector<PulseInfo> DerivePulses(std::span<const PulseInfo> stored,
                                    const SeqTimeline& timeline) {
  std::unordered_map<std::string_view, Stored> byKey;
  byKey.reserve(stored.size());
  for (const PulseInfo& pulse : stored) byKey.try_emplace(pulse.m_strCWSeg, Stored{&pulse});
  std::vector<PulseInfo> derived;
  derived.reserve(timeline.Segments().size());
  for (const SeqSegment& segment : timeline.Segments()) {
    if (!CarriesPulse(segment)) continue;
    std::string key = SegmentKey(segment);
    const auto found = byKey.find(key);
    if (found == byKey.end()) {
      derived.push_back(NoPulse(std::move(key)));
    } else if (!found->second.taken) {
      found->second.taken = true;
      derived.push_back(*found->second.pulse);
    }
  }
  return derived;
}

bool FollowWheel(GUIInputsData& data) {
  LampWaveFormData* const waveform = SelectedWaveform(data);
  if (waveform == nullptr) return false;
  std::string signature = WheelSignature(data.ColorWheel);
  if (signature == waveform->CWType) return false;
  const SeqTimeline timeline = SelectedTimeline(data);
  if (!IsTimed(timeline)) return false;
  waveform->VecPulses = DerivePulses(waveform->VecPulses, timeline);
  waveform->CWType = std::move(signature);
  return true;
}

std::span<const PulseInfo> ShownPulses(const GUIInputsData& data) {
  const LampWaveFormData* const waveform = SelectedWaveform(data);
  const bool fits = waveform != nullptr && waveform->CWType == WheelSignature(data.ColorWheel);
  return fits ? std::span<const PulseInfo>(waveform->VecPulses) : std::span<const PulseInfo>();
}

void AddWaveform(GUIInputsData& data, const std::string& group, double spin,
                 const std::string& title) {
  const SeqTimeline timeline = WheelTimeline(data.ColorWheel, FindGroup(data, group), spin);
  LampWaveFormData& waveform = WaveformsOf(data, group, spin).emplace_back();
  waveform.WaveFormTitle = title;
  // Without a timeline there is no signature either, so that the pulses follow once there is one.
  if (!IsTimed(timeline)) return;
  waveform.CWType = WheelSignature(data.ColorWheel);
  waveform.VecPulses = SeedPulses(timeline);
}

}  // namespace lamp_waveform
