// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/temporal_response.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TemporalResponse, LeavesAndComesBackToGainOne) {
  TemporalResponse response;
  response.Load(10, 100, 20, 1.4);
  EXPECT_THAT(response.Times(), ElementsAre(0, 10, 110, 130));
  EXPECT_THAT(response.Gains(), ElementsAre(1, 1.4, 1.4, 1));
}

TEST(TemporalResponse, DropsPointsThatSayNothing) {
  TemporalResponse response;
  response.Load(0, 0, 50, 0.5);
  EXPECT_THAT(response.Times(), ElementsAre(0, 0, 50));
  EXPECT_THAT(response.Gains(), ElementsAre(1, 0.5, 1));
  response.Load(0, 50, 0, 1.0);
  EXPECT_THAT(response.Times(), ElementsAre(0, 50));
  response.Load(0, 0, 0, 2.0);
  EXPECT_THAT(response.Times(), IsEmpty());
  EXPECT_EQ(response.Count(), 0u);
}

}  // namespace
