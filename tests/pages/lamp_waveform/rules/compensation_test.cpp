// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/compensation.h"

#include <gmock/gmock.h>

#include "pages/lamp_waveform/rules/lamp_current.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::EnterLength;
using lamp_waveform::EnterRatio;
using lamp_waveform::SpokeNames;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Spokes = std::map<std::string, bool>;

TEST(Spokes, AreThoseOfOneRevolution) {
  GUIInputsData data = waveform_test::MakeInputs();
  for (const double spin : {1.0, 2.0, 2.5, 2.2, 3.0}) {
    data.CurrentSpinFactor = spin;
    data.CurrentGroupType = "2D";
    EXPECT_THAT(SpokeNames(data), ElementsAre("RG", "GB", "BR")) << spin;
    data.CurrentGroupType = "3D";
    EXPECT_THAT(SpokeNames(data), ElementsAre("RG", "GB", "BR")) << spin;
  }
  // A name that comes again has its number behind it.
  auto& segments = data.ColorWheel.Segments;
  segments = {segments[0], segments[1], segments[0], segments[1], segments[0], segments[1]};
  EXPECT_THAT(SpokeNames(data), ElementsAre("RG", "GR", "RG1", "GR1", "RG2", "GR2"));
  data.CurrentSpinFactor = 0.00001;
  EXPECT_THAT(SpokeNames(data), IsEmpty());
  data.CurrentSpinFactor = 1e9;
  EXPECT_THAT(SpokeNames(data), IsEmpty());
}

TEST(Spokes, TheMapFollowsTheWheel) {
  Spokes pulses{{"RG", true}, {"GB", false}};
  EXPECT_FALSE(lamp_waveform::FollowSpokes({"RG", "GB"}, pulses));
  EXPECT_TRUE(lamp_waveform::FollowSpokes({"RG", "GW"}, pulses));
  EXPECT_EQ(pulses, (Spokes{{"RG", true}, {"GW", false}}));
  EXPECT_TRUE(lamp_waveform::FollowSpokes({}, pulses));
  EXPECT_THAT(pulses, IsEmpty());
}

TEST(Compensation, ARatioIsMoreThan100) {
  const struct {
    const char* text;
    std::int32_t becomes;
    bool refused;
  } cases[] = {{"101", 101, false},      {"150abc", 150, false},
               {"120", 120, false},      {"100", 120, true},
               {"", 120, true},          {"abc", 120, true},
               {"-500", 120, true},      {"2147483647", 2147483647, false},
               {"2147483648", 120, true}};
  for (const auto& [text, becomes, refused] : cases) {
    std::int32_t ratio = 120;
    const auto entered = EnterRatio(text, ratio);
    EXPECT_EQ(ratio, becomes) << text;
    EXPECT_EQ(entered.refusal.has_value(), refused) << text;
    EXPECT_EQ(entered.changed, becomes != 120) << text;
  }
  std::int32_t ratio = 120;
  EXPECT_EQ(EnterRatio("100", ratio).refusal, "Pulse Plateau Ratio should be more than 100%.");
}

TEST(Compensation, ALengthIsAbove0) {
  const struct {
    const char* text;
    double becomes;
    bool refused;
  } cases[] = {{"300.5", 300.5, false},       {"250.1235", 250.1235, false},
               {"250.123", 250.12345, false}, {"0", 250.12345, true},
               {"-1", 250.12345, true},       {"", 250.12345, true},
               {"1e999", 250.12345, true}};
  for (const auto& [text, becomes, refused] : cases) {
    double length = 250.12345;
    const auto entered = EnterLength(text, length);
    EXPECT_EQ(length, becomes) << text;
    EXPECT_EQ(entered.refusal.has_value(), refused) << text;
    EXPECT_EQ(entered.changed, becomes != 250.12345) << text;
  }
  double zero = 0;
  EXPECT_FALSE(EnterLength("", zero).refusal);
}

TEST(Compensation, IsCalledByItsMaker) {
  EXPECT_STREQ(lamp_waveform::TextsOf(1).tab, "OSRAM");
  EXPECT_STREQ(lamp_waveform::TextsOf(0).heading, "Anti-Flatter Pulse?");
  EXPECT_STREQ(lamp_waveform::TextsOf(255).tab, "Philips");
}

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
