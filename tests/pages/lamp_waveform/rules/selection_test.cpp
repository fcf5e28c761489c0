// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/selection.h"

#include <gmock/gmock.h>

#include "pages/lamp_waveform/rules/ballast.h"
#include "pages/lamp_waveform/rules/titles.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::CheckNewTitle;
using lamp_waveform::CheckTitleInDatabase;
using lamp_waveform::FindPair;
using lamp_waveform::ReselectByBeginning;
using lamp_waveform::ReselectByName;
using lamp_waveform::StoreBallast;
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

TEST(WaveformTitles, TheDialogRefusesDoubledAndReservedOnes) {
  const std::vector<std::string> titles{"Bright"};
  EXPECT_EQ(CheckNewTitle("Bright", titles)->caption, "Duplicate Waveform Name");
  EXPECT_EQ(CheckNewTitle("Bright", titles)->text,
            "A waveform with the name 'Bright' already exists. Please enter a different name.");
  EXPECT_FALSE(CheckNewTitle("bright", titles));
  for (const char* reserved : {"(none)", "(NONE)", "(None)"}) {
    EXPECT_EQ(CheckNewTitle(reserved, titles)->caption, "Wrong Waveform Name") << reserved;
  }
  EXPECT_FALSE(CheckNewTitle("None", titles));
  EXPECT_FALSE(CheckNewTitle(" Bright ", titles));
}

TEST(WaveformTitles, ThePageRefusesThoseOfAnyPairAndNamesIt) {
  GUIInputsData data;
  WaveformsOf(data, "2D", 2.5).resize(1);
  data.LampWaveformDB[0].LWData[0].WaveFormTitle = "100% white";
  EXPECT_EQ(CheckTitleInDatabase("100% white", data.LampWaveformDB)->text,
            "Waveform '100% white' is already associated with '2D' Group Type and '2.5x' "
            "SpinFactor.\n\nPlease use different name for the new waveform.");
  EXPECT_FALSE(CheckTitleInDatabase("100% White", data.LampWaveformDB));
  EXPECT_EQ(lamp_waveform::DeleteQuestion("a"), "Are you sure you want to delete waveform: \"a\"?");
}

TEST(Ballast, EveryListedMakerHasItsPlace) {
  const auto makers = lamp_waveform::BallastMakers();
  for (std::size_t i = 0; i < makers.size(); ++i) {
    EXPECT_EQ(lamp_waveform::MakerPosition(makers[i].code), i);
    // But for the first, a text ends with its code.
    const std::string text = makers[i].text;
    if (i > 0) {
      EXPECT_EQ(text.substr(text.rfind('_') + 1), std::to_string(makers[i].code));
    }
  }
  EXPECT_EQ(lamp_waveform::MakerPosition(12), std::nullopt);
}

TEST(Ballast, StoresOnlyWhatDiffers) {
  LampWaveform attributes;
  attributes.SetUARTparams(5, 12, 200);
  EXPECT_FALSE(StoreBallast(attributes, true, std::nullopt, 200));
  EXPECT_EQ(attributes.GetUARTFlag(), 5);
  EXPECT_TRUE(StoreBallast(attributes, true, 3, 200));
  EXPECT_EQ(attributes.GetBallastMakerCode(), 2);
  EXPECT_FALSE(StoreBallast(attributes, true, 3, 200));
  EXPECT_TRUE(StoreBallast(attributes, false, std::nullopt, 0));
  EXPECT_EQ(attributes.GetUARTFlag(), 0);
  EXPECT_EQ(attributes.GetBallastMakerCode(), 2);
  EXPECT_EQ(attributes.GetBallastWaveformIndex(), 0);
}

}  // namespace
