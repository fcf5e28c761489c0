// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/waveform_check.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "host/project/finding_report.h"
#include "pages/lamp_waveform/rules/ballast.h"
#include "pages/lamp_waveform/rules/compensation.h"
#include "pages/lamp_waveform/rules/pulse_dialog.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/titles.h"

namespace lamp_waveform {
namespace {

constexpr const char* kWaveforms = "Waveform Name";
constexpr const char* kPulses = "Pulses";

std::string PairName(const LampWaveFormDB& pair) {
  return "\"" + pair.SeqGrpName + "\" at " + SpinFactorText(pair.SpinFactor) + "x";
}

/// One waveform and what its pair says of it.
struct Subject {
  const LampWaveFormData& waveform;
  std::string name;
  const PCGroup* group;
  bool applyDarkPulse;
};

void CheckReach(const LampWaveFormDB& pair, const PCGroup* group, const GUIInputsData& data,
                FindingReport& report) {
  if (FindPair(data, pair.SeqGrpName, pair.SpinFactor) != &pair) {
    report.Warning("waveform.pair-twice", kWaveforms,
                   "there is another entry for " + PairName(pair) + "; this one is never shown");
    return;
  }
  if (pair.LWData.empty()) return;
  if (group == nullptr) {
    report.Warning("waveform.unknown-group", "Group Type",
                   "waveforms of " + PairName(pair) + " belong to no group type");
    return;
  }
  const auto reaches = [&](const std::string& text) {
    return SpinFactorOf(text) == pair.SpinFactor;
  };
  if (std::ranges::none_of(SpinFactorTexts(*group), reaches)) {
    report.Warning("waveform.unknown-spin", "Spin Factor",
                   "waveforms of " + PairName(pair) + " have a spin factor that it does not offer");
  }
  if (ReferenceRate(*group) < 0) {
    report.Warning("waveform.no-rate", "Group Type", NoRateMessage(*group));
  }
}

void CheckTitle(const Subject& subject, std::set<std::string>& titles, FindingReport& report) {
  const std::string& title = subject.waveform.WaveFormTitle;
  if (title.empty() || CheckNewTitle(title, {})) {
    report.Error("waveform.title", kWaveforms, subject.name + " has a title that is refused");
  }
  if (!titles.insert(title).second) {
    report.Error("waveform.title-twice", kWaveforms, "there is another " + subject.name);
  }
}

void CheckAttributes(const Subject& subject, FindingReport& report) {
  const LampWaveform& attributes = subject.waveform.Attributes;
  if (!MakerPosition(attributes.GetBallastMakerCode())) {
    report.Warning("waveform.maker", "Ballast MFG",
                   subject.name + " has the ballast maker code " +
                       std::to_string(attributes.GetBallastMakerCode()) + ", which is not known");
  }
  if (!attributes.CompensationEnabled) return;
  if (attributes.PulsePlateauRatio <= 100) {
    report.Error("waveform.ratio", "Pulse/Plateau Ratio",
                 "the pulse/plateau ratio of " + subject.name + " is " +
                     RatioText(attributes.PulsePlateauRatio) + " %, not more than 100");
  }
  if (!(attributes.PulseLength > 0)) {
    report.Error("waveform.pulse-length", "Pulse Length (@60Hz)",
                 "the pulse length of " + subject.name + " is " +
                     LengthText(attributes.PulseLength) + ", not above 0");
  }
}

void CheckPulse(const PulseInfo& pulse, const Subject& subject, double rate,
                FindingReport& report) {
  const std::string name = "pulse " + pulse.m_strCWSeg + " of " + subject.name;
  const PulseValues values = ValuesOf(pulse, rate);
  report.Within(values.amplitude, 0, kMaxAmplitudePercent, "waveform.amplitude-range", kPulses,
                "the amplitude of " + name);
  for (const double duration : {values.leadingEdge, values.trailingEdge, values.width}) {
    report.Within(duration, 0, kMaxDurationUs, "waveform.duration-range", kPulses,
                  "a duration in microseconds of " + name);
  }
  if (IsNoPulse(values)) {
    report.Warning("waveform.no-effect", kPulses, name + " has no effect");
  }
  const VIDarkPulseInfo& limits = subject.group->VIDarkPulseInfo;
  if (subject.applyDarkPulse && limits.Enable && values.amplitude < limits.MinAmplitude) {
    report.Warning("waveform.below-dark-pulse", kPulses,
                   name + " is below the least amplitude of a dark pulse");
  }
}

/// Keys of the timeline's segments that carry pulses.
using Keys = std::set<std::string>;

void CheckPulses(const Subject& subject, const std::string& signature, const Keys& keys,
                 FindingReport& report) {
  if (subject.waveform.CWType != signature) {
    report.Warning("waveform.other-wheel", kPulses,
                   subject.name + " was made for the wheel " + subject.waveform.CWType +
                       "; its pulses follow when it is shown");
  }
  const double rate = RateInForce(*subject.group, subject.applyDarkPulse);
  for (const PulseInfo& pulse : subject.waveform.VecPulses) {
    if (!pulse.m_IsPulse) continue;
    if (rate > 0) CheckPulse(pulse, subject, rate, report);
    if (!keys.contains(pulse.m_strCWSeg)) {
      report.Warning(
          "waveform.lost-segment", kPulses,
          "pulse " + pulse.m_strCWSeg + " of " + subject.name + " lies on no segment of the wheel");
    }
  }
}

Keys KeysOf(const SequenceTiming::SeqTimeline& timeline) {
  Keys keys;
  for (const SequenceTiming::SeqSegment& segment : timeline.Segments()) {
    if (CarriesPulse(segment)) keys.insert(SegmentKey(segment));
  }
  return keys;
}

void CheckLimits(const PCGroup& group, FindingReport& report) {
  const VIDarkPulseInfo& limits = group.VIDarkPulseInfo;
  if (limits.Enable && !(limits.MinAmplitude <= limits.MaxAmplitude)) {
    report.Error(
        "waveform.dark-pulse-limits", "Group Type",
        "the least amplitude of a dark pulse of \"" + group.Title + "\" is above the largest");
  }
}

}  // namespace

Findings CheckWaveforms(const GUIInputsData& data) {
  FindingReport report;
  for (const PCGroup& group : data.PCGroups) CheckLimits(group, report);
  const std::string signature = WheelSignature(data.ColorWheel);
  std::set<std::string> titles;
  for (const LampWaveFormDB& pair : data.LampWaveformDB) {
    const PCGroup* const group = FindGroup(data, pair.SeqGrpName);
    CheckReach(pair, group, data, report);
    const Keys keys = KeysOf(WheelTimeline(data.ColorWheel, group, pair.SpinFactor));
    for (const LampWaveFormData& waveform : pair.LWData) {
      const Subject subject{waveform,
                            "waveform \"" + waveform.WaveFormTitle + "\" of " + PairName(pair),
                            group, data.ApplyVIDarkPulse};
      CheckTitle(subject, titles, report);
      CheckAttributes(subject, report);
      if (group != nullptr) CheckPulses(subject, signature, keys, report);
    }
  }
  return report.Take();
}

}  // namespace lamp_waveform
