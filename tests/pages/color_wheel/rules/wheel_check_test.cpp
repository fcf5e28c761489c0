// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/wheel_check.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "pages/color_wheel/rules/segment_rows.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void Add(ColorWheelData& wheel, int color, double size) {
  color_wheel::AddSegment(wheel, 0);
  wheel.Segments.back().Color = wheel.FilterSpecs.back().Color = color;
  wheel.Segments.back().Size = size;
}

ColorWheelData ThreeColors() {
  ColorWheelData wheel;
  for (int color = 0; color < 3; ++color) Add(wheel, color, 120);
  wheel.SpokeSize = 10;
  return wheel;
}

std::vector<std::string> Rules(const ColorWheelData& wheel, std::vector<double> rates = {}) {
  std::vector<std::string> rules;
  for (const Finding& finding : color_wheel::CheckWheel(wheel, "RGB", rates)) {
    rules.push_back((finding.severity == Severity::kError ? "E " : "W ") + finding.rule);
  }
  return rules;
}

TEST(WheelCheck, HasNothingToSayOfAGoodWheel) {
  EXPECT_THAT(Rules(ThreeColors(), {50, 60}), IsEmpty());
  EXPECT_THAT(Rules(ColorWheelData()), IsEmpty());
  ColorWheelData sevenths;
  for (int i = 0; i < 7; ++i) Add(sevenths, i % 3, 51.42857);
  EXPECT_THAT(Rules(sevenths), IsEmpty());
}

TEST(WheelCheck, KnowsWhatThePageRefuses) {
  ColorWheelData wheel = ThreeColors();
  wheel.Segments[0].Size = 361;
  wheel.Segments[1].SpokeGain = 5.1;
  wheel.Segments[2].ModeledSegmentPwm = -0.1;
  wheel.FilterSpecs[0].LwFactor = 1.5;
  wheel.FilterSpecs[1].Color = 2;
  wheel.FilterSpecs.resize(2);
  wheel.SpokeSize = 91;
  wheel.NominalFrameRate = 0;
  EXPECT_THAT(Rules(wheel), ElementsAre("E color-wheel.size-range", "E color-wheel.filter-range",
                                        "E color-wheel.gain-range", "E color-wheel.filter-color",
                                        "E color-wheel.pwm-range", "E color-wheel.filter-count",
                                        "E color-wheel.total", "E color-wheel.spoke-range",
                                        "E color-wheel.frame-rate"));
  const Findings findings = color_wheel::CheckWheel(wheel, "RGB", {});
  EXPECT_EQ(findings[0].text, "the size of segment 0 is 361, outside 0 to 360");
  EXPECT_EQ(findings[1].text, "LW Factor of segment 0 is 1.5, outside 0 to 1");
}

TEST(WheelCheck, WarnsOfWhatTheDeviceShows) {
  ColorWheelData wheel = ThreeColors();
  wheel.Segments[0].Size = 100;
  wheel.Segments[2].Size = 10;
  Add(wheel, 1, 0);
  Add(wheel, 6, 90);
  Add(wheel, 8, 20);
  Add(wheel, -1, 20);
  wheel.FilterSpecs[1].Sw50 = 600;
  wheel.FilterSpecs[1].Lw50 = 500;
  EXPECT_THAT(Rules(wheel, {50}),
              ElementsAre("W color-wheel.filter-edges", "W color-wheel.empty-segment",
                          "W color-wheel.unsupported-color", "W color-wheel.uncounted-color",
                          "W color-wheel.no-color", "W color-wheel.gap",
                          "W color-wheel.narrow-segment", "W color-wheel.unsupported-rate"));
  wheel.SpokeSize = -1;
  wheel.Segments[3].Color = 19;
  EXPECT_THAT(Rules(wheel), testing::AllOf(testing::Contains("W color-wheel.negative-spoke"),
                                           testing::Contains("E color-wheel.color")));
}

}  // namespace
