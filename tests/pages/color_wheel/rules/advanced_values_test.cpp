// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/advanced_values.h"

#include <gtest/gtest.h>

namespace {

using color_wheel::AdvancedColumn;
using color_wheel::AdvancedGrid;
using color_wheel::TakeAdvancedValue;
using color_wheel::ValueOf;

SSegGeom Red(double size) {
  SSegGeom segment;
  segment.Color = 0;
  segment.Size = size;
  return segment;
}

TEST(AdvancedValues, EditedEfficienciesAreTheMeasuredOnes) {
  const auto modeled = ValueOf(AdvancedGrid::kPwm, AdvancedColumn::kSegment, true);
  SSegGeom segment = Red(90);
  segment.ModeledSegmentPwm = 0.5;
  EXPECT_EQ(color_wheel::AdvancedCell(segment, modeled), "0.500");
  EXPECT_FALSE(TakeAdvancedValue("0.75", modeled, segment).rewrite);
  EXPECT_EQ(segment.MeasuredSegmentPwm, 0.75);
  EXPECT_EQ(segment.ModeledSegmentPwm, 0.5);
}

TEST(AdvancedValues, ApplyReplacesWhatDiffers) {
  ColorWheelData wheel;
  wheel.Segments = {Red(90), Red(120)};
  std::vector<SSegGeom> edited = wheel.Segments;
  EXPECT_FALSE(color_wheel::ApplyAdvanced(edited, true, wheel));
  edited[1].SpokeGain = 2;
  EXPECT_TRUE(color_wheel::ApplyAdvanced(edited, true, wheel));
  EXPECT_EQ(wheel.Segments[1].SpokeGain, 2);
  EXPECT_TRUE(color_wheel::ApplyAdvanced(edited, false, wheel));
  EXPECT_FALSE(wheel.UseModeledPwm);
  // Without a segment there is nothing whose efficiencies could be chosen.
  wheel.Segments.clear();
  EXPECT_FALSE(color_wheel::ApplyAdvanced({}, true, wheel));
  EXPECT_FALSE(wheel.UseModeledPwm);
}

}  // namespace
