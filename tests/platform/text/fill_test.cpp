// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/text/fill.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Fill, PutsValuesWhereThePatternHasConversions) {
  EXPECT_EQ(Fill("Bin#%d exceeds (=%.3f)", {"3", "1.000"}), "Bin#3 exceeds (=1.000)");
  EXPECT_EQ(Fill("group%d.seq%d.minhz", {"1", "12"}), "group1.seq12.minhz");
  EXPECT_EQ(Fill("%5d  ", {"    7"}), "    7  ");
  EXPECT_EQ(Fill("no conversion", {}), "no conversion");
  EXPECT_EQ(Fill("%s and %s", {"50% off", "%d"}), "50% off and %d") << "values are not searched";
}

}  // namespace
}  // namespace platform
