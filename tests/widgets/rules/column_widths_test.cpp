// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/column_widths.h"

#include <gmock/gmock.h>

using GUI::ShareWidth;
using testing::ElementsAre;

TEST(ColumnWidths, WidthIsSharedInProportionToWhatIsWanted) {
  EXPECT_THAT(ShareWidth(300, {{100, 10}, {50, 10}}), ElementsAre(200, 100));
  EXPECT_THAT(ShareWidth(100, {{1, 0}, {1, 0}, {1, 0}}), ElementsAre(33, 34, 33));
  EXPECT_THAT(ShareWidth(100, {{90, 0}, {10, 30}}), ElementsAre(70, 30));
  EXPECT_THAT(ShareWidth(100, {{80, 50}, {10, 30}, {10, 15}}), ElementsAre(55, 30, 15))
      << "a column fixed at its minimum makes another too narrow";
  EXPECT_THAT(ShareWidth(50, {{40, 40}, {40, 40}}), ElementsAre(40, 40)) << "no room: minimums";
  EXPECT_THAT(ShareWidth(100, {}), ElementsAre());
}
