// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_dialog.h"

#include <gtest/gtest.h>

#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::CheckAmplitude;
using lamp_waveform::IsNoPulse;
using lamp_waveform::PulseValues;
using lamp_waveform::StartEditing;
using waveform_test::DarkGroup;

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

}  // namespace
