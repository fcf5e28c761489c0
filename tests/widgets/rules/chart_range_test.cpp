// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/chart_range.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

using GUI::ChartRange;
using GUI::ChartRangeFit;
using GUI::IsChartRange;

static constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ChartRange, ShowsAllValuesWithAMargin) {
  const std::tuple<bool, std::vector<double>, ChartRange> cases[] = {
      {false, {2, 12, 7}, {1, 13}},
      {true, {1, 100, 10}, {std::pow(10, -0.2), std::pow(10, 2.2)}},
      {false, {}, {0, 1}},
      {true, {}, {1, 10}},
      {false, {4}, {2, 6}},
      {false, {0}, {-0.5, 0.5}},
      {false, {NAN, kInfinity}, {0, 1}},
      {true, {0, -5, 10}, {10 / std::sqrt(10), 10 * std::sqrt(10)}}};
  for (const auto& [logarithmic, values, expected] : cases) {
    ChartRangeFit fit(logarithmic);
    for (const double value : values) fit.Add(value);
    const ChartRange range = fit.Result(0.1);
    EXPECT_DOUBLE_EQ(range.lower, expected.lower) << values.size();
    EXPECT_DOUBLE_EQ(range.upper, expected.upper) << values.size();
    EXPECT_TRUE(IsChartRange(range, logarithmic));
  }
}

TEST(ChartRange, AnAxisNeedsAFiniteRangeThatIsNotEmpty) {
  EXPECT_TRUE(IsChartRange({-1, 1}, false));
  EXPECT_FALSE(IsChartRange({-1, 1}, true));
  EXPECT_FALSE(IsChartRange({0, 1}, true));
  EXPECT_FALSE(IsChartRange({1, 1}, false));
  EXPECT_FALSE(IsChartRange({2, 1}, false));
  EXPECT_FALSE(IsChartRange({0, kInfinity}, false));
  EXPECT_FALSE(IsChartRange({NAN, 1}, false));
}
