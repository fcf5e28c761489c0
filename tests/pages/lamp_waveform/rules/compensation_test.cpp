// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/compensation.h"

#include <gmock/gmock.h>

#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::EnterLength;
using lamp_waveform::EnterRatio;
using testing::IsEmpty;
using Spokes = std::map<std::string, bool>;

std::string Names(const GUIInputsData& data) {
  Spokes pulses;
  std::string names;
  for (const SpokePulse& spoke : lamp_waveform::ListSpokes(data, pulses)) {
    EXPECT_FALSE(pulses.at(spoke.Spoke));
    names += spoke.Spoke + " ";
  }
  return names;
}

TEST(Spokes, AreThoseOfOneRevolution) {
  GUIInputsData data = waveform_test::MakeInputs();
  for (const double spin : {1.0, 2.0, 2.5, 2.2, 3.0}) {
    data.CurrentSpinFactor = spin;
    data.CurrentGroupType = "2D";
    EXPECT_EQ(Names(data), "RG GB BR ") << spin;
    data.CurrentGroupType = "3D";
    EXPECT_EQ(Names(data), "RG GB BR ") << spin;
  }
  // A name that comes again has its number behind it.
  auto& segments = data.ColorWheel.Segments;
  segments = {segments[0], segments[1], segments[0], segments[1], segments[0], segments[1]};
  EXPECT_EQ(Names(data), "RG GR RG1 GR1 RG2 GR2 ");
}

TEST(Spokes, TheMapFollowsTheWheel) {
  GUIInputsData data = waveform_test::MakeInputs();
  Spokes pulses{{"RG", true}, {"GB", false}, {"GW", true}};
  const auto spokes = lamp_waveform::ListSpokes(data, pulses);
  EXPECT_TRUE(spokes.at(0).Applied);
  EXPECT_EQ(pulses, (Spokes{{"RG", true}, {"GB", false}, {"BR", false}}));
  // Without a timeline nothing is known of spokes.
  for (const double spin : {0.00001, 1e9}) {
    data.CurrentSpinFactor = spin;
    EXPECT_THAT(lamp_waveform::ListSpokes(data, pulses), IsEmpty());
    EXPECT_EQ(pulses.size(), 3);
  }
  data = waveform_test::MakeInputs();
  data.PCGroups[0].Rates.clear();
  EXPECT_THAT(lamp_waveform::ListSpokes(data, pulses), IsEmpty());
  EXPECT_EQ(pulses.size(), 3);
  data = waveform_test::MakeInputs();
  data.ColorWheel.SpokeSize = 0;
  EXPECT_THAT(lamp_waveform::ListSpokes(data, pulses), IsEmpty());
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

}  // namespace
