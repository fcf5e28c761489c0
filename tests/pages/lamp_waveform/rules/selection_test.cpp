// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/selection.h"

#include <gmock/gmock.h>

#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::FindPair;
using lamp_waveform::ReselectByBeginning;
using lamp_waveform::ReselectByName;
using lamp_waveform::WaveformsOf;
using testing::ElementsAre;

TEST(WaveformSelection, APairIsFoundExactlyAndMadeOnFirstUse) {
  GUIInputsData data = waveform_test::MakeInputs();
  WaveformsOf(data, "2D", 2.5).resize(1);
  EXPECT_EQ(data.LampWaveformDB.size(), 1u);
  EXPECT_EQ(WaveformsOf(data, "2D", 2.5).size(), 1u);
  EXPECT_EQ(FindPair(data, "2d", 2.5), nullptr);
  EXPECT_EQ(FindPair(data, "2D", 2.5000001), nullptr);
  EXPECT_TRUE(WaveformsOf(data, "2D", 2.0).empty());
  EXPECT_EQ(data.LampWaveformDB.size(), 2u);
  // What the list shows of a spin factor is what selects.
  EXPECT_EQ(lamp_waveform::SpinFactorOf("2.5"), 2.5);
}

TEST(WaveformSelection, ASpinFactorIsListedOnce) {
  PCGroup group("2D");
  group.SpinFactors = {2.0, 2.5, 2.04, 3, 2.5};
  EXPECT_THAT(lamp_waveform::SpinFactorTexts(group), ElementsAre("2.0", "2.5", "3.0"));
}

TEST(WaveformSelection, ReselectsWhatWasSelected) {
  const std::vector<std::string> items{"Bright", "2D Bright", "2D", "bright"};
  EXPECT_EQ(ReselectByBeginning(items, "2d b"), 1u);
  EXPECT_EQ(ReselectByBeginning(items, "x"), 0u);
  EXPECT_EQ(ReselectByBeginning({}, "x"), std::nullopt);
  EXPECT_EQ(ReselectByName(items, "2d"), 2u);
  EXPECT_EQ(ReselectByName(items, "2D Br"), 0u);
  // One that differs in letter case, or begins alike, does not take the place of the right one.
  EXPECT_EQ(ReselectByName(items, "bright"), 3u);
  EXPECT_EQ(ReselectByBeginning(items, "2D"), 2u);
}

}  // namespace
