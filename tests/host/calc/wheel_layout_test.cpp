// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/wheel_layout.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "platform/text/number.h"

namespace {

constexpr int kRed = 0;
constexpr int kGreen = 1;
constexpr int kBlue = 2;
constexpr int kBlack = 7;

/// "NAME START SWEEP, ..." of every part.
std::string Parts(const wheel_layout::Layout& layout) {
  std::string text;
  for (const wheel_layout::Part& part : layout.parts) {
    text += (text.empty() ? "" : ", ") + part.name + ' ' +
            platform::GeneralText(part.startDegrees) + ' ' +
            platform::GeneralText(part.sweepDegrees);
  }
  return text;
}

TEST(WheelLayout, SpokesTakeHalfFromEitherNeighbour) {
  const CWSeg wheel[] = {{kRed, 100}, {kGreen, 120}, {kBlue, 140}};
  const auto layout = wheel_layout::LayOut(wheel, 10);
  EXPECT_EQ(Parts(layout), "R 5 90, RG 95 10, G 105 110, GB 215 10, B 225 130, BR 355 10");
  EXPECT_EQ(layout.parts[5].neighbour, 0u);
  EXPECT_EQ(layout.GapDegrees(), 0);
  EXPECT_EQ(layout.OverflowDegrees(), 0);
}

TEST(WheelLayout, NeighboursOfOneColorHaveNoSpoke) {
  // Black and the segment without a size have no place, so red meets red.
  const CWSeg wheel[] = {{kRed, 90}, {kBlack, 45}, {kBlue, 0}, {kRed, 90}, {kGreen, 90}};
  const auto layout = wheel_layout::LayOut(wheel, 20);
  EXPECT_EQ(Parts(layout), "R 10 80, R 90 80, RG 170 20, G 190 70, GR 260 20");
  EXPECT_EQ(layout.parts[1].segment, 3u);
  EXPECT_EQ(layout.parts[2].neighbour, 4u);
  EXPECT_EQ(layout.GapDegrees(), 90);
}

TEST(WheelLayout, WheelsWithoutSpokes) {
  const CWSeg one[] = {{kRed, 361}};
  const auto overfull = wheel_layout::LayOut(one, 18);
  EXPECT_EQ(Parts(overfull), "R 0 361");
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
  EXPECT_EQ(Parts(layout), "R 5 160, RG 165 10, G 175 0, GB 171 10, B 181 174, BR 355 10");
}

TEST(WheelLayout, FindsTheSegmentUnderAnAngle) {
  const CWSeg wheel[] = {{kRed, 100}, {kBlack, 30}, {kGreen, 100}};
  const std::pair<double, std::optional<std::size_t>> places[] = {
      {0, 0}, {99.9, 0}, {100, 2}, {460, 2}, {250, std::nullopt}, {-10, std::nullopt}, {-180, 2}};
  for (const auto& [angle, segment] : places) {
    EXPECT_EQ(wheel_layout::SegmentAt(wheel, angle), segment) << angle;
  }
}

}  // namespace
