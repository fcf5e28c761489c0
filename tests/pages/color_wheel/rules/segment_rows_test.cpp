// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/segment_rows.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace {

using color_wheel::RowBlock;
using testing::ElementsAre;

/// Segments that tell by size, filters that tell by peak, rows tagged 100, 101, ...
ColorWheelData Wheel(int segments) {
  ColorWheelData wheel;
  for (int i = 0; i < segments; ++i) {
    color_wheel::AddSegment(wheel, 100 + i);
    wheel.Segments.back().Size = i;
    wheel.FilterSpecs.back().PeakTransmission = i;
  }
  return wheel;
}

std::vector<double> Sizes(const ColorWheelData& wheel) {
  std::vector<double> sizes;
  for (const SSegGeom& segment : wheel.Segments) sizes.push_back(segment.Size);
  return sizes;
}

std::vector<double> Peaks(const ColorWheelData& wheel) {
  std::vector<double> peaks;
  for (const SFilterSpec& filter : wheel.FilterSpecs) peaks.push_back(filter.PeakTransmission);
  return peaks;
}

TEST(SegmentRows, CopiesGoToTheEndLastBlockFirst) {
  ColorWheelData wheel = Wheel(6);
  color_wheel::CopySegments(wheel, std::vector<RowBlock>{{0, 1}, {4, 5}});
  EXPECT_THAT(Sizes(wheel), ElementsAre(0, 1, 2, 3, 4, 5, 4, 5, 0, 1));
  EXPECT_EQ(Peaks(wheel), Sizes(wheel));
}

TEST(SegmentRows, DeletesEachBlock) {
  ColorWheelData wheel = Wheel(7);
  color_wheel::DeleteSegments(wheel, std::vector<RowBlock>{{0, 0}, {2, 4}, {6, 6}});
  EXPECT_THAT(Sizes(wheel), ElementsAre(1, 5));
  EXPECT_EQ(Peaks(wheel), Sizes(wheel));
}

TEST(SegmentRows, FollowsTheRowsOfTheGrid) {
  ColorWheelData wheel = Wheel(4);
  color_wheel::OrderByRows(wheel, std::vector<int>{103, 7, 101, 100, 102});
  EXPECT_THAT(Sizes(wheel), ElementsAre(3, 1, 0, 2));
  EXPECT_EQ(Peaks(wheel), Sizes(wheel));
}

TEST(SegmentRows, AWheelStoredWithoutFiltersGetsThem) {
  ColorWheelData wheel = Wheel(3);
  wheel.Segments[2].Color = 4;
  wheel.FilterSpecs.resize(1);
  EXPECT_EQ(color_wheel::FilterOf(wheel, 2).Color, 4);
  color_wheel::CopySegments(wheel, std::vector<RowBlock>{{2, 2}});
  ASSERT_EQ(wheel.FilterSpecs.size(), 4u);
  EXPECT_EQ(wheel.FilterSpecs[3].Color, 4);
  wheel.Segments.clear();
  color_wheel::MatchFilters(wheel);
  EXPECT_TRUE(wheel.FilterSpecs.empty());
}

// Whatever the order of operations, a segment keeps its own filter and stands in its own row.
TEST(SegmentRows, StayInStepThroughRandomOperations) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  ColorWheelData wheel = Wheel(5);
  int nextTag = 1000;
  for (int step = 0; step < 500; ++step) {
    const auto count = static_cast<int>(wheel.Segments.size());
    const int first = count == 0 ? 0 : static_cast<int>(random() % static_cast<unsigned>(count));
    const std::vector<RowBlock> block{{first, std::min(first + 1, count - 1)}};
    switch (random() % 4) {
      case 0:
        color_wheel::AddSegment(wheel, nextTag);
        wheel.Segments.back().Size = wheel.FilterSpecs.back().PeakTransmission = nextTag++;
        break;
      case 1:
        if (count == 0 || count > 30) break;
        color_wheel::CopySegments(wheel, block);
        for (auto i = static_cast<std::size_t>(count); i < wheel.Segments.size(); ++i) {
          wheel.Segments[i].RowTag = nextTag++;
        }
        break;
      case 2:
        if (count != 0) color_wheel::DeleteSegments(wheel, block);
        break;
      default: {
        std::vector<int> tags;
        for (const SSegGeom& segment : wheel.Segments) tags.push_back(segment.RowTag);
        std::shuffle(tags.begin(), tags.end(), random);
        color_wheel::OrderByRows(wheel, tags);
        for (std::size_t i = 0; i < tags.size(); ++i) EXPECT_EQ(wheel.Segments[i].RowTag, tags[i]);
      }
    }
    ASSERT_EQ(Peaks(wheel), Sizes(wheel)) << step;
  }
}

}  // namespace
