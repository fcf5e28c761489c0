// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_table.h"

#include <gmock/gmock.h>

namespace {

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
