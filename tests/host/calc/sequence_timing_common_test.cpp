// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/sequence_timing_common.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "host/calc/zel_utils.h"

namespace {

using SequenceTiming::SeqSegment;
using SequenceTiming::SeqTimeline;

constexpr int kRed = 0;
constexpr int kGreen = 1;
constexpr int kBlue = 2;

SeqTimeline Timeline(const std::vector<CWSeg>& wheel, double spin, double rate, double spoke,
                     bool is3D = false) {
  return SequenceTiming_Common::GetSeqTimeline(wheel, spin, rate, spoke, 0, 0.0, rate, false, is3D,
                                               0, SeqTimeline(0.0, 0.0), is3D ? "3D" : "2D");
}

/// "R00 RG00 ...": every segment with its two indices.
std::string Keys(const SeqTimeline& timeline) {
  std::string keys;
  for (const SeqSegment& segment : timeline.Segments()) {
    keys += (keys.empty() ? "" : " ") + segment.name + std::to_string(segment.index1) +
            std::to_string(segment.index2);
  }
  return keys;
}

TEST(SequenceTimeline, TwoRevolutionsInOneFrame) {
  // 50 Hz, spin 2: a revolution takes 10000 us, a degree 27.7... us.
  const std::vector<CWSeg> wheel{{kRed, 144}, {kGreen, 108}, {kBlue, 108}};
  const SeqTimeline timeline = Timeline(wheel, 2.0, 50.0, 36.0);
  EXPECT_EQ(Keys(timeline), "R00 RG00 G00 GB00 B00 BR00 R10 RG10 G10 GB10 B10 BR10");
  EXPECT_EQ(timeline.LengthUs(), 20000);
  const double starts[] = {0, 3000, 4000, 6000, 7000, 9000};
  const double lengths[] = {3000, 1000, 2000, 1000, 2000, 1000};
  for (std::size_t i = 0; i < 12; ++i) {
    EXPECT_NEAR(timeline.Segments()[i].startUs, starts[i % 6] + (i < 6 ? 0 : 10000), 1e-9) << i;
    EXPECT_NEAR(timeline.Segments()[i].lengthUs, lengths[i % 6], 1e-9) << i;
  }
}

TEST(SequenceTimeline, SecondIndexCountsANameWithinItsRevolution) {
  const std::vector<CWSeg> wheel{{kRed, 90}, {kGreen, 90}, {kRed, 90}, {kGreen, 90}};
  EXPECT_EQ(Keys(Timeline(wheel, 2.0, 60.0, 10.0)),
            "R00 RG00 G00 GR00 R01 RG01 G01 GR01 R10 RG10 G10 GR10 R11 RG11 G11 GR11");
}

TEST(SequenceTimeline, CoversFramesUntilTheWheelIsBackAtItsStart) {
  const std::vector<CWSeg> wheel{{kRed, 360}};
  const SeqTimeline half = Timeline(wheel, 2.5, 60.0, 0.0);
  EXPECT_EQ(Keys(half), "R00 R10 R20 R30 R40");
  EXPECT_DOUBLE_EQ(half.LengthUs(), 2e6 / 60);
  EXPECT_DOUBLE_EQ(half.Segments().back().EndUs(), half.EndUs());

  EXPECT_EQ(Keys(Timeline(wheel, 2.0, 60.0, 0.0, true)), "R00 R10 R20 R30");
  EXPECT_EQ(Keys(Timeline(wheel, 2.5, 60.0, 0.0, true)), "R00 R10 R20 R30 R40");
}

TEST(SequenceTimeline, BeginsWhereTheOneBeforeEnds) {
  const std::vector<CWSeg> wheel{{kRed, 180}, {kGreen, 180}};
  const SeqTimeline timeline = SequenceTiming_Common::GetSeqTimeline(
      wheel, 1.0, 100.0, 0.0, 0, 0.0, 100.0, false, false, 0, SeqTimeline(200.0, 50.0), "2D");
  EXPECT_EQ(timeline.StartUs(), 250);
  EXPECT_EQ(timeline.Segments()[1].startUs, 5250);
}

TEST(SequenceTimeline, IsEmptyWhereThereIsNothingToTime) {
  const std::vector<CWSeg> wheel{{kRed, 360}};
  for (const double bad : {0.0, -1.0, std::nan("")}) {
    EXPECT_TRUE(Timeline(wheel, bad, 60.0, 0.0).Segments().empty()) << bad;
    EXPECT_TRUE(Timeline(wheel, 2.0, bad, 0.0).Segments().empty()) << bad;
  }
  EXPECT_TRUE(Timeline(wheel, 70000, 60.0, 0.0).Segments().empty());
  EXPECT_TRUE(Timeline({}, 2.0, 60.0, 18.0).Segments().empty());
}

TEST(FramesForSpinFactor, IsTheSmallestNumberOfWholeTurns) {
  const struct {
    double spin;
    int frames;
    int frames3D;
  } cases[] = {
      {2.0, 1, 2},          {2.5, 2, 2},      {2.2, 5, 10}, {1.0 / 3, 3, 6}, {1 + 1.0 / 64, 64, 64},
      {1 + 1.0 / 65, 1, 2}, {2.0000005, 1, 2}};
  for (const auto& [spin, frames, frames3D] : cases) {
    EXPECT_EQ(ZelUtils::GetNumFramesForSpinFactor(spin, false, false, ""), frames) << spin;
    EXPECT_EQ(ZelUtils::GetNumFramesForSpinFactor(spin, true, false, "3D"), frames3D) << spin;
  }
}

// Every spin factor a page can select has one decimal. Its product with the frames must not fall
// short of the whole number by rounding, or a revolution would be lost.
TEST(FramesForSpinFactor, LosesNoRevolutionToRounding) {
  for (int tenths = 1; tenths <= 400; ++tenths) {
    const double spin = tenths / 10.0;
    const int frames = ZelUtils::GetNumFramesForSpinFactor(spin, false, false, "");
    const auto timeline = Timeline({{kRed, 360}}, spin, 60.0, 0.0);
    EXPECT_EQ(timeline.Segments().size(), static_cast<std::size_t>(frames * tenths / 10)) << spin;
    EXPECT_EQ(std::trunc(frames * spin), frames * tenths / 10) << spin;
  }
}

}  // namespace
