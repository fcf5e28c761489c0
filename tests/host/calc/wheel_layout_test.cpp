// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/wheel_layout.h"

#include <gtest/gtest.h>

namespace {

constexpr int kRed = 0;
constexpr int kGreen = 1;
constexpr int kBlue = 2;
constexpr int kBlack = 7;

void ExpectPart(const wheel_layout::Part& part, const char* name, double start, double sweep) {
  EXPECT_EQ(part.name, name);
  EXPECT_DOUBLE_EQ(part.startDegrees, start) << name;
  EXPECT_DOUBLE_EQ(part.sweepDegrees, sweep) << name;
}

TEST(WheelLayout, SpokesTakeHalfFromEitherNeighbour) {
  const CWSeg wheel[] = {{kRed, 100}, {kGreen, 120}, {kBlue, 140}};
  const auto layout = wheel_layout::LayOut(wheel, 10);
  ASSERT_EQ(layout.parts.size(), 6u);
  ExpectPart(layout.parts[0], "R", 5, 90);
  ExpectPart(layout.parts[1], "RG", 95, 10);
  ExpectPart(layout.parts[2], "G", 105, 110);
  ExpectPart(layout.parts[3], "GB", 215, 10);
  ExpectPart(layout.parts[4], "B", 225, 130);
  ExpectPart(layout.parts[5], "BR", 355, 10);
  EXPECT_EQ(layout.parts[5].neighbour, 0u);
  EXPECT_EQ(layout.GapDegrees(), 0);
  EXPECT_EQ(layout.OverflowDegrees(), 0);
}

TEST(WheelLayout, NeighboursOfOneColorHaveNoSpoke) {
  // Black and the segment without a size have no place, so red meets red.
  const CWSeg wheel[] = {{kRed, 90}, {kBlack, 45}, {kBlue, 0}, {kRed, 90}, {kGreen, 90}};
  const auto layout = wheel_layout::LayOut(wheel, 20);
  ASSERT_EQ(layout.parts.size(), 5u);
  ExpectPart(layout.parts[0], "R", 10, 80);
  ExpectPart(layout.parts[1], "R", 90, 80);
  EXPECT_EQ(layout.parts[1].segment, 3u);
  ExpectPart(layout.parts[2], "RG", 170, 20);
  EXPECT_EQ(layout.parts[2].neighbour, 4u);
  ExpectPart(layout.parts[3], "G", 190, 70);
  ExpectPart(layout.parts[4], "GR", 260, 20);
  EXPECT_EQ(layout.GapDegrees(), 90);
}

TEST(WheelLayout, WheelsWithoutSpokes) {
  const CWSeg one[] = {{kRed, 361}};
  const auto overfull = wheel_layout::LayOut(one, 18);
  ASSERT_EQ(overfull.parts.size(), 1u);
  ExpectPart(overfull.parts[0], "R", 0, 361);
  EXPECT_EQ(overfull.OverflowDegrees(), 1);

  const CWSeg two[] = {{kRed, 180}, {kGreen, 180}};
  EXPECT_EQ(wheel_layout::LayOut(two, 0).parts.size(), 2u);
  EXPECT_EQ(wheel_layout::LayOut(two, -5).parts.size(), 2u);
  EXPECT_TRUE(wheel_layout::LayOut({}, 18).parts.empty());
  EXPECT_EQ(wheel_layout::LayOut({}, 18).GapDegrees(), 360);
}

TEST(WheelLayout, SpokesWiderThanTheirSegmentLeaveNothingOfIt) {
  const CWSeg wheel[] = {{kRed, 170}, {kGreen, 6}, {kBlue, 184}};
  const auto layout = wheel_layout::LayOut(wheel, 10);
  ExpectPart(layout.parts[2], "G", 175, 0);
  ExpectPart(layout.parts[4], "B", 181, 174);
}

TEST(WheelLayout, FindsTheSegmentUnderAnAngle) {
  const CWSeg wheel[] = {{kRed, 100}, {kBlack, 30}, {kGreen, 100}};
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, 0), 0u);
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, 99.9), 0u);
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, 100), 2u);
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, 460), 2u);
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, 250), std::nullopt);
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, -10), std::nullopt);
  EXPECT_EQ(wheel_layout::SegmentAt(wheel, -180), 2u);
}

}  // namespace
