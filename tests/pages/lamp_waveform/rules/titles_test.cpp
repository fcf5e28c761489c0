// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/titles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using lamp_waveform::CheckNewTitle;
using lamp_waveform::CheckTitleInDatabase;

TEST(WaveformTitles, TheDialogRefusesDoubledAndReservedOnes) {
  const std::vector<std::string> titles{"Bright"};
  EXPECT_EQ(CheckNewTitle("Bright", titles)->caption, "Duplicate Waveform Name");
  EXPECT_EQ(CheckNewTitle("Bright", titles)->text,
            "A waveform with the name 'Bright' already exists. Please enter a different name.");
  EXPECT_FALSE(CheckNewTitle("bright", titles));
  for (const char* reserved : {"(none)", "(NONE)", "(None)"}) {
    EXPECT_EQ(CheckNewTitle(reserved, titles)->caption, "Wrong Waveform Name") << reserved;
  }
  EXPECT_EQ(CheckNewTitle("a\x01", titles)->caption, "Wrong Waveform Name");
  EXPECT_FALSE(CheckNewTitle("None", titles));
  EXPECT_FALSE(CheckNewTitle(" Bright ", titles));
}

TEST(WaveformTitles, ThePageRefusesThoseOfAnyPairAndNamesIt) {
  std::vector<LampWaveFormDB> database{{"3D", 2.5, {}}, {"2D", 2.5, {}}};
  database[1].LWData.resize(1);
  database[1].LWData[0].WaveFormTitle = "100% white";
  EXPECT_EQ(CheckTitleInDatabase("100% white", database)->text,
            "Waveform '100% white' is already associated with '2D' Group Type and '2.5x' "
            "SpinFactor.\n\nPlease use different name for the new waveform.");
  EXPECT_FALSE(CheckTitleInDatabase("100% White", database));
  EXPECT_EQ(lamp_waveform::DeleteQuestion("a"), "Are you sure you want to delete waveform: \"a\"?");
}

}  // namespace
