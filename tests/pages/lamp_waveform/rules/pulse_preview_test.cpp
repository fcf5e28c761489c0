// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_preview.h"

#include <gtest/gtest.h>

#include <cmath>

#include <utility>

namespace {

using lamp_waveform::PulseValues;

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
  EXPECT_FALSE(lamp_waveform::MakePreview({.amplitude = 50, .width = std::nan("")}));
  EXPECT_EQ(lamp_waveform::PreviewNote({140, 10.5, 20, 100}),
            "Note:\n      Pulses (0--110.5) will be aligned with the end of sequence segment (See "
            "TimingChart Page for detailed\n      view of waveform).");
}

}  // namespace
