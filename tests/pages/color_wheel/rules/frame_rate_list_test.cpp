// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/frame_rate_list.h"

#include <gmock/gmock.h>

#include "host/data/color_wheel_data.h"

namespace {

using color_wheel::MakeFrameRateList;
using color_wheel::ParseFrameRates;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FrameRateList, ReadsNumbersBetweenWhiteSpace) {
  EXPECT_THAT(ParseFrameRates(" 50 60\t100\n120.5 "), ElementsAre(50, 60, 100, 120.5));
  EXPECT_THAT(ParseFrameRates("Not Found"), IsEmpty());
  EXPECT_THAT(ParseFrameRates(""), IsEmpty());
  EXPECT_THAT(ParseFrameRates("50,60"), ElementsAre(50));
  EXPECT_THAT(ParseFrameRates("-50"), IsEmpty());
  EXPECT_THAT(ParseFrameRates("1.2.3 4"), ElementsAre(1.2, 4));
}

TEST(FrameRateList, SelectsTheRateThatIsStored) {
  const double supported[] = {50, 60, 60};
  const auto list = MakeFrameRateList(supported, 60, 60);
  EXPECT_THAT(list.entries, ElementsAre("  50.00", "  60.00", "  60.00"));
  EXPECT_EQ(list.selected, 1u);
  EXPECT_TRUE(list.enabled);
  EXPECT_EQ(list.storeAtOnce, std::nullopt);
  EXPECT_EQ(MakeFrameRateList(supported, 60, 59.94).selected, std::nullopt);
}

TEST(FrameRateList, TheSecondRateFollowsUnlessTheWheelSpinsFourTimes) {
  ColorWheelData wheel;
  EXPECT_TRUE(color_wheel::SelectFrameRate("  50.00", {}, wheel));
  EXPECT_EQ(wheel.NominalFrameRate, 50);
  EXPECT_EQ(wheel.SecondFrameRate, 50);
  EXPECT_FALSE(color_wheel::SelectFrameRate("  50.00", {}, wheel));
  EXPECT_FALSE(color_wheel::SelectFrameRate("", {}, wheel));
  EXPECT_FALSE(color_wheel::SelectFrameRate("fast", {}, wheel));
  wheel.SpinValue = 4.0;
  EXPECT_TRUE(color_wheel::SelectFrameRate("  60.00", {}, wheel));
  EXPECT_EQ(wheel.NominalFrameRate, 60);
  EXPECT_EQ(wheel.SecondFrameRate, 50);
}

TEST(FrameRateList, AnEntryStandsForTheWholeRateThatItShows) {
  const double supported[] = {23.976, 24, 59.94};
  ColorWheelData wheel;
  EXPECT_TRUE(color_wheel::SelectFrameRate("  23.98", supported, wheel));
  EXPECT_EQ(wheel.NominalFrameRate, 23.976);
  EXPECT_EQ(MakeFrameRateList(supported, 60, wheel.NominalFrameRate).selected, 0u);
}

}  // namespace
