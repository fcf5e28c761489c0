// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/wheel_sizes.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

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
