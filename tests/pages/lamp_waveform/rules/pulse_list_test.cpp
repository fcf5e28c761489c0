// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::DerivePulses;
using lamp_waveform::FollowWheel;
using SequenceTiming::SeqSegment;
using SequenceTiming::SeqTimeline;
using waveform_test::Keys;
using waveform_test::MakeInputs;

PulseInfo Pulse(const std::string& key, double amplitude = 1.5) {
  return PulseInfo(true, key, amplitude, 1, 2, 3);
}

TEST(PulseList, ANewWaveformHasNoPulseOnEverySegment) {
  GUIInputsData data = MakeInputs();
  lamp_waveform::AddWaveform(data, "2D", 2.0, "Bright");
  data.CurrentWaveformName = "Bright";
  const LampWaveFormData& waveform = *lamp_waveform::SelectedWaveform(data);
  EXPECT_EQ(Keys(waveform.VecPulses), "(R00) (G00) (B00) (R10) (G10) (B10)");
  EXPECT_EQ(waveform.CWType, "RGB");
  EXPECT_EQ(waveform.VecPulses[0], PulseInfo(false, "R00", 1, 0, 0, 0));

  lamp_waveform::AddWaveform(data, "2D", 2.5, "Slow");
  EXPECT_EQ(lamp_waveform::FindPair(data, "2D", 2.5)->LWData[0].VecPulses.size(), 15u);
}

TEST(PulseList, PulsesOfSegmentsThatSurviveAChangedWheelStay) {
  GUIInputsData data = MakeInputs();
  lamp_waveform::AddWaveform(data, "2D", 2.0, "Bright");
  data.CurrentWaveformName = "Bright";
  std::vector<PulseInfo>& pulses = lamp_waveform::SelectedWaveform(data)->VecPulses;
  pulses[1] = Pulse("G00");
  pulses[5] = Pulse("B10", 0.5);
  EXPECT_FALSE(FollowWheel(data));

  data.ColorWheel.Segments[0].Color = 6;
  data.ColorWheel.Segments.insert(data.ColorWheel.Segments.begin(),
                                  SSegGeom{.Color = 2, .Size = 10});
  EXPECT_TRUE(FollowWheel(data));
  EXPECT_EQ(Keys(pulses), "(B00) (Y00) G00 (B01) B10 (Y10) (G10) (B11)");
  EXPECT_EQ(pulses[2], Pulse("G00"));
  EXPECT_EQ(lamp_waveform::SelectedWaveform(data)->CWType, "BYGB");
  EXPECT_FALSE(FollowWheel(data));
}

TEST(PulseList, WithoutATimelineNothingIsLost) {
  GUIInputsData data = MakeInputs();
  data.PCGroups[0].Rates.clear();
  lamp_waveform::AddWaveform(data, "2D", 2.0, "Bright");
  data.CurrentWaveformName = "Bright";
  LampWaveFormData& waveform = *lamp_waveform::SelectedWaveform(data);
  EXPECT_TRUE(waveform.VecPulses.empty());
  waveform.VecPulses = {Pulse("R00")};
  for (const std::vector<double>& untimed : {std::vector<double>(), {0.0}}) {
    data.PCGroups[0].Rates = untimed;
    EXPECT_FALSE(FollowWheel(data));
    EXPECT_EQ(Keys(waveform.VecPulses), "R00");
    EXPECT_TRUE(lamp_waveform::ShownPulses(data).empty());
  }
  // With a rate the pulses follow.
  data.PCGroups[0].Rates = {60};
  EXPECT_TRUE(FollowWheel(data));
  EXPECT_EQ(Keys(waveform.VecPulses), "R00 (G00) (B00) (R10) (G10) (B10)");
  EXPECT_EQ(lamp_waveform::ShownPulses(data).size(), 6u);
}

SeqTimeline Timeline(const std::vector<SeqSegment>& segments) {
  SeqTimeline timeline(0, 1000);
  timeline.Segments() = segments;
  return timeline;
}

TEST(PulseList, ASecondSegmentOfAKeyGetsNoEntryWhenThePulseIsTaken) {
  // Revolution 1, occurrence 11 and revolution 11, occurrence 1 have one key.
  const SeqTimeline timeline =
      Timeline({{"R", 1, 11, 0, 0}, {"RG", 1, 0, 0, 0}, {"R", 11, 1, 0, 0}, {"G", 0, 0, 0, 0}});
  EXPECT_EQ(
      Keys(DerivePulses(std::vector{Pulse("R111"), Pulse("R111", 9), Pulse("W00")}, timeline)),
      "R111 (G00)");
  EXPECT_EQ(DerivePulses(std::vector{Pulse("R111"), Pulse("R111", 9)}, timeline)[0].m_Amp, 1.5);
  EXPECT_EQ(Keys(DerivePulses({}, timeline)), "(R111) (R111) (G00)");
}

/// The rule as it is told: each segment searches the stored pulses from the first on.
std::vector<PulseInfo> DeriveBySearching(const std::vector<PulseInfo>& stored,
                                         const SeqTimeline& timeline) {
  std::vector<PulseInfo> derived;
  std::set<std::size_t> taken;
  for (const SeqSegment& segment : timeline.Segments()) {
    if (segment.name.size() >= 2) continue;
    const std::string key = lamp_waveform::SegmentKey(segment);
    std::size_t found = 0;
    while (found < stored.size() && stored[found].m_strCWSeg != key) ++found;
    if (found == stored.size()) {
      derived.emplace_back(false, key, 1, 0, 0, 0);
    } else if (taken.insert(found).second) {
      derived.push_back(stored[found]);
    }
  }
  return derived;
}

TEST(PulseList, FindsWhatSearchingFinds) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  const auto any = [&](unsigned count) { return static_cast<std::uint16_t>(random() % count); };
  for (int round = 0; round < 200; ++round) {
    std::vector<SeqSegment> segments;
    std::vector<PulseInfo> stored;
    for (unsigned i = any(30); i > 0; --i) {
      segments.push_back(
          {std::string(1, "RGB"[any(3)]) + (any(4) == 0 ? "W" : ""), any(12), any(12), 0, 0});
    }
    for (unsigned i = any(30); i > 0; --i) {
      const SeqSegment some{std::string(1, "RGB"[any(3)]), any(12), any(12), 0, 0};
      stored.push_back(Pulse(lamp_waveform::SegmentKey(some), i));
      if (!segments.empty() && any(2) == 0) {
        stored.push_back(Pulse(
            lamp_waveform::SegmentKey(segments[any(static_cast<unsigned>(segments.size()))])));
      }
    }
    const SeqTimeline timeline = Timeline(segments);
    EXPECT_EQ(DerivePulses(stored, timeline), DeriveBySearching(stored, timeline));
  }
}

}  // namespace
