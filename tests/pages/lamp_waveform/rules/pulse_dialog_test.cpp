// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_dialog.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

#include "pages/lamp_waveform/rules/pulse_preview.h"
#include "pages/lamp_waveform/rules/pulse_table.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::CheckAmplitude;
using lamp_waveform::IsNoPulse;
using lamp_waveform::MakePulse;
using lamp_waveform::PulseValues;
using lamp_waveform::RateInForce;
using lamp_waveform::ReferenceRate;
using lamp_waveform::StartEditing;
using lamp_waveform::ValuesOf;

/// Dark pulses of 20 to 60 %.
PCGroup DarkGroup() {
  PCGroup group = waveform_test::MakeInputs().PCGroups[0];
  group.VIDarkPulseInfo = {.Enable = true,
                           .MaxFallLength = 30,
                           .Jitter = 1,
                           .MinWidthLength = 200,
                           .MaxRiseLength = 40,
                           .MinAmplitude = 20,
                           .MaxAmplitude = 60,
                           .CWRate = 120};
  return group;
}

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

TEST(PulseDialog, AnAmplitudeOf100OrNoDurationIsNoPulse) {
  const struct {
    PulseValues values;
    bool noPulse;
  } cases[] = {{{99.995, 10, 10, 10}, true},   {{99.98, 10, 10, 10}, false},
               {{99.99, 10, 10, 10}, false},   {{100.01, 10, 10, 10}, false},
               {{100.009, 10, 10, 10}, true},  {{50, 0.004, 0, 0.005}, true},
               {{50, 0.004, 0, 0.006}, false}, {{50, 0, 0, 0}, true}};
  for (const auto& [values, noPulse] : cases) {
    EXPECT_EQ(IsNoPulse(values), noPulse) << values.amplitude << " " << values.Duration();
  }
}

TEST(PulseDialog, OpensForANewPulse) {
  const PCGroup group = DarkGroup();
  const auto dark = lamp_waveform::StartAdding(group, true);
  EXPECT_TRUE(dark.darkPulseMode);
  EXPECT_EQ(dark.values, (PulseValues{20, 30, 40, 200}));
  const auto plain = lamp_waveform::StartAdding(group, false);
  EXPECT_FALSE(plain.darkPulseMode);
  EXPECT_EQ(plain.values, (PulseValues{100, 0, 0, 0}));
}

TEST(PulseDialog, OpensForAStoredPulse) {
  const PCGroup group = DarkGroup();
  const PulseInfo pulse(true, "R00", 0.1, 3.6, 0, 36);
  // At 120 Hz a degree takes 23.1 us, at 60 Hz twice as long.
  const auto applied = StartEditing(pulse, group, true);
  EXPECT_TRUE(applied.darkPulseMode);
  EXPECT_EQ(applied.values.amplitude, 20);
  EXPECT_NEAR(applied.values.width, 1e6 / 1200, 1e-9);
  const auto notApplied = StartEditing(pulse, group, false);
  EXPECT_TRUE(notApplied.darkPulseMode);
  EXPECT_EQ(notApplied.values.amplitude, 10);
  EXPECT_NEAR(notApplied.values.width, 1e6 / 600, 1e-9);
}

TEST(PulseDialog, RefusesAmplitudesThatItsCheckBoxDoesNotAllow) {
  const VIDarkPulseInfo limits = DarkGroup().VIDarkPulseInfo;
  const struct {
    bool dark;
    double amplitude;
    double becomes;
    const char* message;
  } cases[] = {{true, 20, 20, nullptr},
               {true, 60, 60, nullptr},
               {true, 19.9, 20, "The DP amplitude must be greater than 20."},
               {true, 61, 60, "The DP amplitude must be less than 60."},
               {false, 60, 60, nullptr},
               {false, 61, 61, nullptr},
               {false, 59.5, 61, "The non-DP amplitude must be greater than 60."}};
  for (const auto& [dark, amplitude, becomes, message] : cases) {
    double value = amplitude;
    const auto refusal = CheckAmplitude(limits, dark, value);
    EXPECT_EQ(refusal.has_value(), message != nullptr) << dark << amplitude;
    EXPECT_EQ(refusal.value_or(""), message == nullptr ? "" : message);
    EXPECT_EQ(value, becomes);
  }
}

TEST(PulseDialog, TheCheckBoxSetsItsValues) {
  const VIDarkPulseInfo limits = DarkGroup().VIDarkPulseInfo;
  PulseValues values{300, 1, 2, 3};
  lamp_waveform::SetDark(limits, true, values);
  EXPECT_EQ(values, (PulseValues{20, 30, 40, 200}));
  values.amplitude = 45;
  lamp_waveform::SetDark(limits, true, values);
  EXPECT_EQ(values.amplitude, 45);
  lamp_waveform::SetDark(limits, false, values);
  EXPECT_EQ(values, (PulseValues{61, 30, 40, 200}));
  EXPECT_EQ(lamp_waveform::OpeningRangeText(limits, 20), "(20~60)");
  EXPECT_EQ(lamp_waveform::OpeningRangeText(limits, 60.5), "(>60)");
  EXPECT_EQ(lamp_waveform::ClickedRangeText(limits, true), "(20-60)");
  EXPECT_EQ(lamp_waveform::ClickedRangeText(limits, false), "(>60)");
}

TEST(PulsePreview, EndsAtTheNextStepAboveThePulse) {
  const struct {
    PulseValues values;
    double xMaximum, yMinimum, yMaximum;
  } cases[] = {{{140, 10, 20, 100}, 150, 0, 1.5}, {{140, 10, 40, 100}, 200, 0, 1.5},
               {{150, 0, 0, 30}, 50, 0, 2},       {{0, 0, 0, 30}, 50, 0, 1.5},
               {{-30, 0, 0, 30}, 50, -0.5, 1.5},  {{-60, 0, 0, 30}, 50, -1, 1.5}};
  for (const auto& [values, xMaximum, yMinimum, yMaximum] : cases) {
    const auto preview = lamp_waveform::MakePreview(values);
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->xMinimum, 0);
    EXPECT_EQ(preview->xMaximum, xMaximum) << values.amplitude;
    EXPECT_EQ(preview->yMinimum, yMinimum) << values.amplitude;
    EXPECT_EQ(preview->yMaximum, yMaximum) << values.amplitude;
    EXPECT_EQ(preview->points.back(), std::pair(xMaximum, 1.0));
  }
  EXPECT_FALSE(lamp_waveform::MakePreview({.amplitude = 50}));
  EXPECT_EQ(lamp_waveform::PreviewNote({140, 10.5, 20, 100}),
            "Note:\n      Pulses (0--110.5) will be aligned with the end of sequence segment (See "
            "TimingChart Page for detailed\n      view of waveform).");
}

TEST(PulseTable, DescribesAPulseInBothUnits) {
  const PulseInfo pulse(true, "R00", 1.5, 3.6, 0, 36);
  EXPECT_EQ(lamp_waveform::PulseDescription(pulse, 50),
            "Pulse Details:\n\nAmplitude = 150.000000 %\n"
            "Leading Edge = 200.000000 usecs/3.600000 deg\n"
            "Trailing Edge = 0.000000 usecs/0.000000 deg\n"
            "Width = 2000.000000 usecs/36.000000 deg\nAlignment = End of segment");
  EXPECT_THAT(lamp_waveform::PulseDescription(pulse, -1),
              testing::HasSubstr("\nWidth = 36.000000 deg\n"));
  EXPECT_EQ(lamp_waveform::PulseDescription(PulseInfo(), 50),
            "No Pulse Added:\n\nClick \"Add\" button \nto add pulse for CW segment");
}

TEST(PulseTable, FitsByItsNumberOfPulses) {
  const struct {
    std::size_t pulses;
    bool expand, scroll;
  } cases[] = {{5, false, false},  {6, true, false},  {13, true, false},
               {14, false, false}, {15, false, true}, {0, false, false}};
  for (const auto& [pulses, expand, scroll] : cases) {
    EXPECT_EQ(lamp_waveform::FitOf(pulses).expandRows, expand) << pulses;
    EXPECT_EQ(lamp_waveform::FitOf(pulses).showScrollBar, scroll) << pulses;
  }
}

}  // namespace
