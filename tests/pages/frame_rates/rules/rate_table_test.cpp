// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/rate_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/frame_rates/rules/literal_rules.h"
#include "pages/frame_rates/rules/random_ranges.h"

namespace frame_rates {
namespace {

using literal::Make;

constexpr int kSets = 20000;

SequenceRange Range(double low, double high, int maxMultiplier) {
  SequenceRange range;
  range.label = "60";
  range.baseRateHz = 60;
  range.minRateHz = low;
  range.maxRateHz = high;
  range.maxMultiplier = maxMultiplier;
  range.enable3d = range.Holds(k3dHz);
  return range;
}

RateBin Bin(std::uint32_t minCount, std::uint32_t maxCount) {
  RateBin bin;
  bin.minCount = minCount;
  bin.maxCount = maxCount;
  return bin;
}

std::vector<std::pair<std::uint32_t, std::uint32_t>> Counts(const std::vector<RateBin>& bins) {
  std::vector<std::pair<std::uint32_t, std::uint32_t>> counts;
  for (const RateBin& bin : bins) counts.emplace_back(bin.minCount, bin.maxCount);
  return counts;
}

testing::AssertionResult Same(const std::vector<RateBin>& bins, const literal::Bins& literal) {
  const auto fields = [](const RateBin& b) {
    return std::tuple(b.minRateHz, b.maxRateHz, b.maxCount, b.minCount, b.multiplier,
                      b.internalSync, b.origin, b.range);
  };
  if (std::ranges::equal(bins, literal, {}, fields, fields)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "got " << testing::PrintToString(Counts(bins))
                                     << ", by the rule " << literal.size() << " bins";
}

TEST(RateTable, GivesTheWorkedExampleToTheLastCount) {
  const RateTable table = ComputeRateTable({Range(47.5, 63.0, 2)});
  const literal::Bins expected{
      Make(0.003492459655621196, 15e6 / 545456, kLastCount, 545456, 1, true, BinOrigin::kBottom),
      Make(27.5, 15e6 / 526317, 545455, 526317, 2, false, BinOrigin::kCandidate),
      Make(28.5, 31.5, 526316, 476190, 2, false, BinOrigin::kForced),
      Make(15e6 / 476189, 15e6 / 315789, 476189, 315789, 1, true, BinOrigin::kGap),
      Make(47.5, 15e6 / 238095, 315789, 238095, 1, false, BinOrigin::kCandidate),
      Make(15e6 / 238094, 15e6, 238094, 0, 1, true, BinOrigin::kTop)};
  EXPECT_TRUE(Same(table.bins, expected));
}

TEST(RateTable, StoresWhatItsBinsSay) {
  SequenceRange range = Range(110, 130, 1);
  range.index = 4;
  const std::vector<FreqBinData> stored = ToFreqBins(ComputeRateTable({range}));
  ASSERT_EQ(stored.size(), 4U) << "bottom, forced, the range, top";
  FreqBinData expected{136364, 115385, 4, 1, 0, 1, "60", 110.0, 15e6 / 115385};
  EXPECT_EQ(stored[2], expected);
  EXPECT_EQ(stored[1].SequenceMultiplier, 2) << "the forced bin";
  EXPECT_EQ(stored[3].IsLockToInternalVsync, 1);
}

TEST(Candidates, FollowTheFloorRuleAndTheSkippedMultipliers) {
  SequenceRange range = Range(47.5, 63.0, 4);
  range.skippedMultipliers = {2, 7, -1};
  const auto bins = MakeCandidates(std::vector{range});
  EXPECT_THAT(Counts(bins),
              testing::ElementsAre(testing::Pair(238095, 315789), testing::Pair(3 * 238095, 818182),
                                   testing::Pair(4 * 238095, 1090909)));
  EXPECT_EQ(MakeCandidate(Range(58, 63, 2), 0, 2)->minRateHz, 29.0) << "from 55 on: minimum / m";
  EXPECT_EQ(MakeCandidate(Range(40, 63, 2), 0, 1)->minRateHz, 40.0) << "not for m = 1";
}

TEST(Candidates, AreNotMadeOfRatesThatCannotBeCounted) {
  const double none = std::nan("");
  for (const auto& [low, high] : std::vector<std::pair<double, double>>{
           {0, 60}, {-1, 60}, {50, 0}, {50, -60}, {none, 60}, {50, none}, {50, 4e7}, {0.001, 60}}) {
    EXPECT_FALSE(MakeCandidate(Range(low, high, 1), 0, 1)) << low << " to " << high;
  }
  EXPECT_TRUE(ComputeRateTable({Range(0, 0, 255)}).bins.empty());
  EXPECT_TRUE(ComputeRateTable({}).bins.empty());
  EXPECT_EQ(MakeCandidates(std::vector{Range(50, 60, 2000000000)}).size(), 255U);
}

TEST(Steps, MakeRoomAsTheRulesSay) {
  const auto forced = [](std::vector<RateBin>& bins) { EXPECT_TRUE(PlaceForcedBin(bins)); };
  const std::pair forcedBin(476190u, 526316u);
  const struct {
    const char* what;
    void (*step)(std::vector<RateBin>&);
    std::vector<RateBin> bins;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> left;
  } cases[] = {{"the slower is wider: the faster loses its slow end",
                ResolveOverlaps,
                {Bin(100, 300), Bin(50, 150)},
                {{100, 300}, {50, 99}}},
               {"the faster is as wide: the slower loses its fast end",
                ResolveOverlaps,
                {Bin(100, 200), Bin(50, 150)},
                {{151, 200}, {50, 150}}},
               {"what is used up goes, and the neighbours are looked at again",
                ResolveOverlaps,
                {Bin(140, 400), Bin(100, 200), Bin(90, 300)},
                {{140, 400}, {90, 139}}},
               {"nothing is above the fastest count",
                FillGaps,
                {Bin(1, 1000)},
                {{1001, kLastCount}, {1, 1000}}},
               {"a bin that holds the forced one whole keeps its slow part",
                forced,
                {Bin(1, 900000)},
                {{526317, 900000}, forcedBin}},
               {"both neighbours are trimmed, what lies within goes",
                forced,
                {Bin(520000, 600000), Bin(480000, 519999), Bin(400000, 479999)},
                {{526317, 600000}, {400000, 476189}, forcedBin}}};
  for (auto [what, step, bins, left] : cases) {
    step(bins);
    EXPECT_EQ(Counts(bins), left) << what;
  }
  std::vector<RateBin> hole{Bin(526317, 900000), Bin(1, 500000)};
  EXPECT_FALSE(PlaceForcedBin(hole));
  EXPECT_EQ(hole.size(), 2U);
}

/// Every step on the bins, beside its literal reading.
void ExpectStepsAgree(std::vector<RateBin> bins, literal::Bins literal) {
  ASSERT_TRUE(Same(bins, literal)) << "candidates";
  SortBins(bins);
  literal::Sort(literal);
  ASSERT_TRUE(Same(bins, literal)) << "sort";
  ResolveOverlaps(bins);
  literal::Resolve(literal);
  ASSERT_TRUE(Same(bins, literal)) << "overlaps";
  if (bins.empty()) return;
  FillGaps(bins);
  literal::FillGaps(literal);
  ASSERT_TRUE(Same(bins, literal)) << "gaps";
  ASSERT_EQ(PlaceForcedBin(bins), literal::Force(literal));
  ASSERT_TRUE(Same(bins, literal)) << "forced bin";
}

TEST(Steps, AgreeWithTheirLiteralReading) {
  constexpr unsigned kSeed = 40201;
  random_ranges::Source source(kSeed);
  for (int set = 0; set < kSets; ++set) {
    const auto ranges = random_ranges::Set(source);
    ASSERT_NO_FATAL_FAILURE(ExpectStepsAgree(MakeCandidates(ranges), literal::Candidates(ranges)))
        << "set " << set << ", seed " << kSeed;
    ASSERT_TRUE(Same(ComputeRateTable(ranges).bins, literal::Table(ranges))) << "set " << set;
  }
}

// Bins as no range gives them: equal and crossed ends, nested, touching, close to the forced bin.
TEST(Steps, AgreeWithTheirLiteralReadingOnAnyBins) {
  constexpr unsigned kSeed = 40202;
  random_ranges::Source source(kSeed);
  const auto count = [&source] {
    return static_cast<std::uint32_t>(random_ranges::Whole(source, 0, 1) == 0
                                          ? random_ranges::Whole(source, 1, 25) * 20000 + 26316
                                          : random_ranges::Whole(source, 476180, 526326));
  };
  for (int set = 0; set < kSets; ++set) {
    std::vector<RateBin> bins;
    for (int size = random_ranges::Whole(source, 1, 12); size > 0; --size) {
      bins.push_back(Bin(count(), count()));
      bins.back().multiplier = static_cast<std::uint32_t>(size);
    }
    ASSERT_NO_FATAL_FAILURE(ExpectStepsAgree(bins, bins)) << "set " << set << ", seed " << kSeed;
  }
}

}  // namespace
}  // namespace frame_rates
