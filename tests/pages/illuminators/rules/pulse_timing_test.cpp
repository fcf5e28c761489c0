// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/rules/pulse_timing.h"

#include <gtest/gtest.h>

#include <utility>

namespace illuminators {
namespace {

TEST(PulseTiming, IsToScaleAndAlwaysLit) {
  IllumCharacteristics illuminator;
  EXPECT_GT(TimingOf(illuminator)->driveOff, 0) << "also without any time";
  illuminator.EnableDelay = 400;
  illuminator.DisableDelay = 2.5;
  illuminator.FallMargin = 6;
  const auto timing = TimingOf(illuminator);
  EXPECT_EQ(timing->lightOn, 400);
  EXPECT_GT(timing->driveOff, timing->lightOn);
  EXPECT_NEAR(timing->lightFalls - timing->driveOff, 2.5, 1e-9);
  EXPECT_NEAR(timing->dark - timing->lightFalls, 6, 1e-9);
  const std::pair<double, double> bars[] = {{1, 1}, {1.9, 1}, {2, 2}, {49, 20}, {0.07, 0.05}};
  for (const auto& [longest, length] : bars) {
    EXPECT_DOUBLE_EQ(ScaleBarLength(longest), length);
  }
}

}  // namespace
}  // namespace illuminators
