// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/segment_rows.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(SegmentRows, AWheelStoredWithoutFiltersGetsThem) {
  ColorWheelData wheel;
  for (int tag = 0; tag < 3; ++tag) color_wheel::AddSegment(wheel, tag);
  wheel.Segments[2].Color = 4;
  wheel.FilterSpecs.resize(1);
  EXPECT_EQ(color_wheel::FilterOf(wheel, 2).Color, 4);
  color_wheel::CopySegments(wheel, std::vector<color_wheel::RowBlock>{{2, 2}});
  ASSERT_EQ(wheel.FilterSpecs.size(), 4u);
  EXPECT_EQ(wheel.FilterSpecs[3].Color, 4);
  wheel.Segments.clear();
  color_wheel::MatchFilters(wheel);
  EXPECT_TRUE(wheel.FilterSpecs.empty());
}

}  // namespace
