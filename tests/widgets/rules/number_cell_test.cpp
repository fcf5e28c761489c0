// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/number_cell.h"

#include <gmock/gmock.h>

#include <tuple>

using GUI::NumberCellFormat;
using testing::Eq;
using testing::Optional;

TEST(NumberCell, TextIsAlwaysInTheCellsFormat) {
  const std::tuple<std::uint16_t, const char*, const char*> cases[] = {
      {2, "3", "3.00"},     {0, "3.7", "3"},
      {2, "abc", "0.00"},   {0, "abc", "0"},
      {2, "", "0.00"},      {0, "", "0"},
      {0, "-12x", "-12"},   {3, " 1.5e2 degrees", "150.000"},
      {1, "-0.25", "-0.2"}, {2, "1,5", "1.00"},
      {0, "+7", "7"},       {2, "1.005", "1.00"},
  };
  for (const auto& [decimals, typed, text] : cases) {
    EXPECT_EQ(NumberCellFormat{decimals}.TextOf(typed), text) << typed;
  }
  EXPECT_EQ(NumberCellFormat{}.Format(), "%d");
  EXPECT_EQ(NumberCellFormat{2}.Format(), "%.2f");
}

TEST(NumberCell, BoundsRefuseWithTheirOwnFormat) {
  const NumberCellFormat both{2, 0.0, 100.0, true, true};
  const auto between = Optional(Eq("Please enter a value between 0.00 and 100.00."));
  EXPECT_THAT(both.Refusal("150"), between);
  EXPECT_THAT(both.Refusal("-0.001"), between);
  for (const char* taken : {"0", "100", "abc", "", "99.999", "nan"}) {
    EXPECT_EQ(both.Refusal(taken), std::nullopt) << taken;
  }
  const NumberCellFormat low{2, 0.0, -1.0, true, false};
  EXPECT_THAT(low.Refusal("-1"), Optional(Eq("Please enter a value no less than 0.00.")));
  EXPECT_EQ(low.Refusal("1e9"), std::nullopt);
  const NumberCellFormat high{1, -1.0, 5.0, false, true};
  EXPECT_THAT(high.Refusal("5.01"), Optional(Eq("Please enter a value no greater than 5.0.")));
  EXPECT_EQ(high.Refusal("-1e9"), std::nullopt);
}

TEST(NumberCell, IntegerBoundsAreCutTowardsZeroAndIntegersNot) {
  const NumberCellFormat cell{0, -0.9, 10.9, true, true};
  EXPECT_THAT(cell.Refusal("11"), Optional(Eq("Please enter a value between 0 and 10.")));
  EXPECT_EQ(cell.Refusal("10.9"), std::nullopt);
  const NumberCellFormat free;
  EXPECT_NE(free.Refusal("99999999999999999999"), std::nullopt) << "what does not fit is not cut";
  EXPECT_NE(free.Refusal("-99999999999999999999"), std::nullopt);
  EXPECT_EQ(free.Refusal("999999999999999999"), std::nullopt);
  EXPECT_EQ(free.TextOf("999999999999999999"), "999999999999999999");
}
