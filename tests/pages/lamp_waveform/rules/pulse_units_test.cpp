// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::MakePulse;
using lamp_waveform::PulseValues;
using lamp_waveform::RateInForce;
using lamp_waveform::ReferenceRate;
using lamp_waveform::ValuesOf;
using waveform_test::DarkGroup;

TEST(PulseUnits, TheReferenceRateIsTheFirstSelectedOne) {
  PCGroup group("2D");
  EXPECT_EQ(ReferenceRate(group), -1);
  group.Rates = {50, 60, 100};
  group.BitwSelectRateFlags = {false, true, true};
  EXPECT_EQ(ReferenceRate(group), 60);
  group.BitwSelectRateFlags = {false};
  EXPECT_EQ(ReferenceRate(group), -1);
  group.Rates = {0};
  group.BitwSelectRateFlags = {true, true};
  EXPECT_EQ(ReferenceRate(group), -1);
}

TEST(PulseUnits, DarkPulsesMayHaveARateOfTheirOwn) {
  PCGroup group = DarkGroup();
  EXPECT_EQ(RateInForce(group, true), 120);
  EXPECT_EQ(RateInForce(group, false), 60);
  group.VIDarkPulseInfo.CWRate = 0;
  EXPECT_EQ(RateInForce(group, true), 60);
  group = DarkGroup();
  group.VIDarkPulseInfo.Enable = false;
  EXPECT_EQ(RateInForce(group, true), 60);
}

TEST(PulseUnits, ConvertBothWaysWithoutLoss) {
  // At 50 Hz a turn takes 20000 us.
  EXPECT_DOUBLE_EQ(lamp_waveform::DegreesOf(5000, 50), 90);
  EXPECT_DOUBLE_EQ(lamp_waveform::MicrosecondsOf(90, 50), 5000);
  const unsigned seed = std::random_device()();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> exponent(-6, 4);
  std::uniform_real_distribution<double> rates(1, 500);
  for (int i = 0; i < 10000; ++i) {
    const double rate = rates(random);
    const PulseValues values{std::pow(10, exponent(random) / 2), std::pow(10, exponent(random)),
                             std::pow(10, exponent(random)), std::pow(10, exponent(random))};
    const PulseValues back = ValuesOf(MakePulse(true, "R00", values, rate), rate);
    EXPECT_NEAR(back.amplitude, values.amplitude, 1e-12 * values.amplitude);
    EXPECT_NEAR(back.leadingEdge, values.leadingEdge, 1e-12 * values.leadingEdge);
    EXPECT_NEAR(back.trailingEdge, values.trailingEdge, 1e-12 * values.trailingEdge);
    EXPECT_NEAR(back.width, values.width, 1e-12 * values.width);
  }
}

// Limits are compared with the amplitude: 29 % must not come back as 28.999999999999996.
TEST(PulseUnits, AnEnteredPercentageComesBackAsItWas) {
  for (int thousandth = 1; thousandth < 200000; thousandth += 7) {
    const double percent = thousandth / 1000.0;
    EXPECT_EQ(ValuesOf(MakePulse(true, "", {.amplitude = percent}, 60), 60).amplitude, percent);
  }
}

}  // namespace
