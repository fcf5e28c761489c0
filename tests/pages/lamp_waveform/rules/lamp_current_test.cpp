// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/lamp_current.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(LampCurrent, APulseEndsWithItsSegment) {
  GUIInputsData data = waveform_test::MakeInputs();
  data.PCGroups[0].Rates = {50};
  data.PCGroups[0].BitwSelectRateFlags = {true};
  data.PCGroups[0].VIDarkPulseInfo.Enable = true;
  data.PCGroups[0].VIDarkPulseInfo.MinAmplitude = 20;
  data.PCGroups[0].VIDarkPulseInfo.MaxAmplitude = 60;
  data.CurrentSpinFactor = 1;
  // 20000 us a turn: red 0 to 6000 us, its spoke 667 us, green from 6667 to 12667 us.
  const auto timeline = lamp_waveform::SelectedTimeline(data);
  const std::vector<PulseInfo> pulses{{true, "G00", 0.5, 1.8, 3.6, 18},
                                      {false, "B00", 0.5, 1.8, 3.6, 18},
                                      {true, "R00", 1.5, 0, 0, 126},
                                      {true, "W00", 1.5, 0, 0, 18},
                                      {true, "B00", 1.5, 0, 0, 0}};
  const auto drawn = lamp_waveform::DrawPulses(pulses, timeline, data.PCGroups[0]);
  ASSERT_EQ(drawn.size(), 2u);
  EXPECT_EQ(drawn[0].row, 0u);
  EXPECT_TRUE(drawn[0].dark);
  const double end = timeline.Segments()[2].EndUs();
  EXPECT_NEAR(end, 12666.667, 0.001);
  EXPECT_NEAR(drawn[0].StartUs(), end - 1100, 1e-6);
  EXPECT_NEAR(drawn[0].points[2].first, end, 1e-6);
  EXPECT_NEAR(drawn[0].EndUs(), end + 200, 1e-6);
  EXPECT_EQ(drawn[1].row, 2u);
  EXPECT_FALSE(drawn[1].dark);
  EXPECT_NEAR(drawn[1].StartUs(), -1000, 1e-6);

  const auto current = lamp_waveform::LampCurrent(drawn, timeline);
  EXPECT_EQ(current.front().second, 1);
  EXPECT_EQ(current.back(), std::pair(20000.0, 1.0));
  EXPECT_TRUE(std::ranges::is_sorted(current, {}, [](const auto& point) { return point.first; }));
  EXPECT_THAT(lamp_waveform::LampCurrent({}, timeline),
              ElementsAre(Pair(0.0, 1.0), Pair(20000.0, 1.0)));

  data.PCGroups[0].BitwSelectRateFlags = {false};
  EXPECT_THAT(lamp_waveform::DrawPulses(pulses, timeline, data.PCGroups[0]), IsEmpty());
}

}  // namespace
