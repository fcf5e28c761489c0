// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/frame_rate_list.h"

#include <gmock/gmock.h>

#include "host/data/color_wheel_data.h"
#include "pages/color_wheel/rules/wheel_sizes.h"

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

TEST(FrameRateList, WithoutSupportedRatesOffersTheDefaultAlone) {
  const struct {
    double rate;
    bool offered;
  } cases[] = {{60, true}, {89.99, true}, {90, false}, {0, false}, {-1, false}};
  for (const auto& [rate, offered] : cases) {
    const auto list = MakeFrameRateList({}, rate, 50);
    EXPECT_FALSE(list.enabled);
    EXPECT_EQ(list.entries.size(), offered ? 1u : 0u) << rate;
    EXPECT_EQ(list.storeAtOnce.has_value(), offered) << rate;
    EXPECT_EQ(list.selected.has_value(), offered) << rate;
  }
  EXPECT_THAT(MakeFrameRateList({}, 60, 50).entries, ElementsAre("60.00"));
}

TEST(FrameRateList, TheSecondRateFollowsUnlessTheWheelSpinsFourTimes) {
  ColorWheelData wheel;
  EXPECT_TRUE(color_wheel::SelectFrameRate("  50.00", wheel));
  EXPECT_EQ(wheel.NominalFrameRate, 50);
  EXPECT_EQ(wheel.SecondFrameRate, 50);
  EXPECT_FALSE(color_wheel::SelectFrameRate("  50.00", wheel));
  EXPECT_FALSE(color_wheel::SelectFrameRate("", wheel));
  EXPECT_FALSE(color_wheel::SelectFrameRate("fast", wheel));
  wheel.SpinValue = 4.0;
  EXPECT_TRUE(color_wheel::SelectFrameRate("  60.00", wheel));
  EXPECT_EQ(wheel.NominalFrameRate, 60);
  EXPECT_EQ(wheel.SecondFrameRate, 50);
}

TEST(SpokeSize, TakesNumbersUpTo90) {
  const struct {
    const char* text;
    double size;
  } cases[] = {{"0", 0},
               {"-5", -5},
               {"90", 90},
               {"90.5", 18.12345},
               {"abc", 18.12345},
               {"", 18.12345},
               {"18.123", 18.12345},
               {"18.5deg", 18.5},
               {"-1e999", 18.12345}};
  for (const auto& [text, size] : cases) {
    ColorWheelData wheel;
    wheel.SpokeSize = 18.12345;
    EXPECT_EQ(color_wheel::StoreSpokeSize(text, wheel), size != 18.12345) << text;
    EXPECT_EQ(wheel.SpokeSize, size) << text;
  }
}

TEST(WheelTotal, CountsColorsThatHaveASizeAndFaultsMoreThanATurn) {
  const auto segment = [](int color, double size) {
    SSegGeom made;
    made.Color = color;
    made.Size = size;
    return made;
  };
  std::vector<SSegGeom> wheel{segment(0, 120), segment(1, 120), segment(18, 120)};
  wheel.push_back(segment(7, 50));
  wheel.push_back(segment(8, 50));
  wheel.push_back(segment(-1, 50));
  EXPECT_EQ(color_wheel::CountedTotal(wheel), 360);
  EXPECT_EQ(color_wheel::TotalText(360), "360.00");
  EXPECT_EQ(color_wheel::TotalFault(360), std::nullopt);
  EXPECT_EQ(color_wheel::TotalFault(100.1 + 100.2 + 159.7), std::nullopt);
  EXPECT_NE(color_wheel::TotalFault(360.01), std::nullopt);
}

}  // namespace
