// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/waveform_check.h"

#include <gmock/gmock.h>

#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::AddWaveform;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::vector<std::string> Rules(const GUIInputsData& data) {
  std::vector<std::string> rules;
  for (const Finding& finding : lamp_waveform::CheckWaveforms(data)) {
    rules.push_back((finding.severity == Severity::kError ? "E " : "W ") + finding.rule);
  }
  return rules;
}

GUIInputsData WithWaveform() {
  GUIInputsData data = waveform_test::MakeInputs();
  AddWaveform(data, "2D", 2.0, "Bright");
  data.LampWaveformDB[0].LWData[0].VecPulses[0] = PulseInfo(true, "R00", 1.5, 1, 1, 10);
  return data;
}

TEST(WaveformCheck, HasNothingToSayOfGoodWaveforms) {
  EXPECT_THAT(Rules(WithWaveform()), IsEmpty());
  EXPECT_THAT(Rules(GUIInputsData()), IsEmpty());
}

TEST(WaveformCheck, KnowsWhatTheSelectionDoesNotReach) {
  GUIInputsData data = WithWaveform();
  AddWaveform(data, "2D", 4.0, "Fast");
  AddWaveform(data, "Other", 2.0, "Lost");
  data.LampWaveformDB.push_back({"2D", 2.0, {}});
  data.PCGroups[0].BitwSelectRateFlags.clear();
  EXPECT_THAT(
      Rules(data),
      UnorderedElementsAre("W waveform.no-rate", "W waveform.no-rate", "W waveform.unknown-spin",
                           "W waveform.unknown-group", "W waveform.pair-twice"));
}

TEST(WaveformCheck, KnowsTitlesAndAttributesThatThePageRefuses) {
  GUIInputsData data = WithWaveform();
  AddWaveform(data, "2D", 2.0, "(NONE)");
  AddWaveform(data, "3D", 2.5, "Bright");
  LampWaveform& attributes = data.LampWaveformDB[0].LWData[0].Attributes;
  attributes.SetUARTparams(0, 12, 0);
  attributes.PulsePlateauRatio = 100;
  attributes.PulseLength = 0;
  EXPECT_THAT(Rules(data), UnorderedElementsAre("W waveform.maker", "E waveform.title",
                                                "E waveform.title-twice"));
  attributes.CompensationEnabled = true;
  EXPECT_THAT(Rules(data), testing::IsSupersetOf({"E waveform.ratio", "E waveform.pulse-length"}));
}

TEST(WaveformCheck, KnowsPulsesThatThePageRefusesOrTheWheelLost) {
  GUIInputsData data = WithWaveform();
  auto& pulses = data.LampWaveformDB[0].LWData[0].VecPulses;
  pulses[0] = PulseInfo(true, "R00", 10.5, 1, -1, 10);
  pulses[1] = PulseInfo(true, "W00", 1.0, 1, 1, 10);
  pulses[2] = PulseInfo(false, "W01", 99, -1, -1, -1);
  EXPECT_THAT(Rules(data),
              UnorderedElementsAre("E waveform.amplitude-range", "E waveform.duration-range",
                                   "W waveform.no-effect", "W waveform.lost-segment"));
  data = WithWaveform();
  data.ColorWheel.Segments[2].Color = 3;
  EXPECT_THAT(Rules(data), UnorderedElementsAre("W waveform.other-wheel"));
}

TEST(WaveformCheck, KnowsTheDarkPulseLimits) {
  GUIInputsData data = WithWaveform();
  VIDarkPulseInfo& limits = data.PCGroups[0].VIDarkPulseInfo;
  limits.MinAmplitude = 200;
  limits.MaxAmplitude = 60;
  data.ApplyVIDarkPulse = true;
  EXPECT_THAT(Rules(data), IsEmpty());
  limits.Enable = true;
  EXPECT_THAT(Rules(data),
              UnorderedElementsAre("E waveform.dark-pulse-limits", "W waveform.below-dark-pulse"));
}

}  // namespace
