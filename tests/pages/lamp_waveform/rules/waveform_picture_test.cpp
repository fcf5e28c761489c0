// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/waveform_picture.h"

#include <gtest/gtest.h>

#include <limits>

#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/time_window.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using lamp_waveform::TimeWindow;
using Row = std::optional<std::size_t>;

/// The three-color wheel at 60 Hz and spin factor 1: 16667 us, a pulse of 1000 us on green.
GUIInputsData MakeData() {
  GUIInputsData data = waveform_test::MakeInputs();
  data.PCGroups[0].Rates = {60};
  data.PCGroups[0].BitwSelectRateFlags = {true};
  data.CurrentSpinFactor = 1;
  data.CurrentWaveformName = "a";
  lamp_waveform::AddWaveform(data, "2D", 1, "a");
  auto& pulses = data.LampWaveformDB[0].LWData[0].VecPulses;
  pulses[1] = PulseInfo(true, "G00", 2.25, 1.08, 1.08, 19.44);
  return data;
}

TEST(WaveformPicture, PutsPulsesAndWheelOnOneTimeAxis) {
  GUIInputsData data = MakeData();
  const auto picture = lamp_waveform::MakePicture(data);
  ASSERT_EQ(picture.strip.size(), 6u);
  EXPECT_EQ(picture.strip[2].name, "G");
  EXPECT_EQ(picture.strip[2].color, 1);
  EXPECT_EQ(picture.strip[2].row, Row(1));
  EXPECT_EQ(picture.strip[3].name, "GB");
  EXPECT_EQ(picture.strip[3].neighbour, 2);
  EXPECT_EQ(picture.strip[3].row, Row());
  EXPECT_EQ(picture.rowTexts.at(1), "G00: 225 %, 50 + 900 + 50 usecs");
  EXPECT_EQ(picture.lowGain, 0);
  EXPECT_EQ(picture.highGain, 2.5);
  EXPECT_NEAR(picture.endUs, 1e6 / 60, 1e-6);

  const double green = picture.strip[2].endUs;
  EXPECT_EQ(lamp_waveform::RowAt(picture, green + 40, 0), Row(1)) << "its trailing edge";
  EXPECT_EQ(lamp_waveform::RowAt(picture, green + 60, 0), Row()) << "the spoke behind it";
  EXPECT_EQ(lamp_waveform::RowAt(picture, green + 60, 20), Row(1)) << "near enough";
  EXPECT_EQ(lamp_waveform::SegmentRowAt(picture, green + 1), Row());
  EXPECT_EQ(lamp_waveform::RowAt(picture, 10, 0), Row(0));

  auto& pulses = data.LampWaveformDB[0].LWData[0].VecPulses;
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  pulses[0] = PulseInfo(true, "R00", kInfinity, 1, 1, 1);
  pulses[2] = PulseInfo(true, "B00", 2, 1, 1, kInfinity);
  EXPECT_EQ(lamp_waveform::MakePicture(data).pulses.size(), 1u) << "the others have no place";
  EXPECT_EQ(lamp_waveform::MakePicture(data).highGain, 2.5);

  data.PCGroups[0].Rates = {120, 60};
  data.PCGroups[0].BitwSelectRateFlags = {false, true};
  EXPECT_EQ(lamp_waveform::MakePicture(data).strip[2].endUs, green) << "at the pulses' rate";
  data.PCGroups[0].BitwSelectRateFlags = {false, false};
  EXPECT_EQ(lamp_waveform::MakePicture(data).note, "The group type '2D' has no rate selected.");
  data.PCGroups.clear();
  EXPECT_TRUE(lamp_waveform::MakePicture(data).IsEmpty());
}

TEST(WaveformPicture, ItsWindowStaysWithinTheSequence) {
  TimeWindow window;
  window.SetAll(-100, 900);
  EXPECT_TRUE(window.ShowsAll());
  EXPECT_EQ(window.Ticks(5), (std::vector<double>{0, 200, 400, 600, 800}));
  window.Zoom(400, 0.5);
  EXPECT_EQ(window.From(), 150);
  EXPECT_EQ(window.To(), 650);
  window.Reveal(700, 800);
  EXPECT_EQ(window.To(), 800);
  window.Reveal(0, 1000);
  EXPECT_EQ(window.From(), 0) << "the begin of what is too long";
  window.Pan(-1e6);
  EXPECT_EQ(window.From(), -100);
  window.SetAll(0, 300);
  EXPECT_EQ(window.From(), 0);
  EXPECT_EQ(window.To(), 300);
  EXPECT_TRUE(window.ShowsAll());
  for (int i = 0; i < 200; ++i) window.Zoom(10, 0.5);
  EXPECT_NEAR(window.Length(), 0.03, 1e-9);
  EXPECT_LE(window.Ticks(8).size(), 9u);
  for (int i = 0; i < 200; ++i) window.Zoom(10, 2);
  EXPECT_TRUE(window.ShowsAll());
  TimeWindow empty;
  empty.Zoom(1, 0.5);
  EXPECT_TRUE(empty.Ticks(5).empty());
}

}  // namespace
