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

TEST(AdvancedValues, RowsEndAtTheFirstSegmentWithoutASize) {
  const SSegGeom segments[] = {Red(90), SSegGeom{.Color = 7, .Size = 9}, Red(0), Red(90)};
  EXPECT_EQ(color_wheel::AdvancedRowCount(segments), 2u);
  const auto gain = ValueOf(AdvancedGrid::kGains, AdvancedColumn::kSpoke, true);
  EXPECT_EQ(color_wheel::AdvancedCell(segments[0], gain), "1.000");
  EXPECT_EQ(color_wheel::AdvancedCell(segments[1], gain), "");
}

TEST(AdvancedValues, RefusesWhatIsNoNumberOrOutOfRange) {
  const auto gain = ValueOf(AdvancedGrid::kGains, AdvancedColumn::kSegment, true);
  const auto pwm = ValueOf(AdvancedGrid::kPwm, AdvancedColumn::kSpoke, false);
  SSegGeom segment = Red(90);
  segment.SegmentGain = 1.23456;

  EXPECT_FALSE(TakeAdvancedValue("1.235", gain, segment).rewrite);
  EXPECT_EQ(segment.SegmentGain, 1.23456);
  EXPECT_EQ(TakeAdvancedValue("", gain, segment).rewrite, "1.235");
  EXPECT_EQ(TakeAdvancedValue("x", gain, segment).message, std::nullopt);
  const auto refused = TakeAdvancedValue("5.001", gain, segment);
  EXPECT_EQ(refused.message, "This value should be in the range - 0.000 to 5.000");
  EXPECT_EQ(refused.rewrite, "1.235");
  EXPECT_EQ(TakeAdvancedValue("-0.1", pwm, segment).message,
            "This value should be in the range - 0.000 to 1.000");
  EXPECT_FALSE(TakeAdvancedValue("5", gain, segment).rewrite);
  EXPECT_FALSE(TakeAdvancedValue("0", pwm, segment).rewrite);
  EXPECT_EQ(segment.SegmentGain, 5);
  EXPECT_EQ(segment.MeasuredSpokePwm, 0);
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
