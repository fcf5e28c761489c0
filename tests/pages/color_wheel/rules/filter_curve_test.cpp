// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/filter_curve.h"

#include <gtest/gtest.h>

namespace {

TEST(FilterCurve, IsHalfItsPeakAtTheEdgesAndAsSoftAsItsFactorsSay) {
  const SFilterSpec filter{.Color = 1,
                           .PeakTransmission = 0.9,
                           .Sw50 = 500,
                           .Lw50 = 600,
                           .SwFactor = 0.2,
                           .LwFactor = 0};
  const auto curve = color_wheel::FilterCurve(filter);
  const auto at = [&](int nm) { return curve[static_cast<std::size_t>(nm - 300)].value; };
  ASSERT_EQ(curve.size(), 551u);
  EXPECT_EQ(curve.back().wavelength, 850);
  EXPECT_NEAR(at(500), 0.45, 1e-9);
  EXPECT_NEAR(at(490), 0.09, 1e-9);
  EXPECT_NEAR(at(510), 0.81, 1e-9);
  EXPECT_NEAR(at(600), 0.9, 1e-6);
  EXPECT_EQ(at(601), 0);
}

}  // namespace
