// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/color_list.h"

#include <gtest/gtest.h>

namespace {

TEST(ColorList, OffersTheSupportedColorsInItsOwnOrder) {
  EXPECT_EQ(color_wheel::ColorList("BGR"), "Red|Green|Blue|None");
  EXPECT_EQ(color_wheel::ColorList("RGBYCMWmyk"),
            "Red|Green|Blue|White|Cyan|Yellow|Magenta|NDMagenta|NDYellow|None");
  EXPECT_EQ(color_wheel::ColorList(""), "None");
  EXPECT_EQ(color_wheel::ColorCell("Red|None", 8), "Red|None|White Spoke");
  EXPECT_EQ(color_wheel::ColorCell("Red|None", -1), "Red|None|");
}

}  // namespace
