// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/ballast.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using lamp_waveform::StoreBallast;

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
