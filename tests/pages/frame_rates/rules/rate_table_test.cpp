// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/rate_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "pages/frame_rates/rules/coverage.h"
#include "pages/frame_rates/rules/literal_rules.h"
#include "pages/frame_rates/rules/random_ranges.h"

namespace frame_rates {
namespace {

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

literal::Bins Plain(const std::vector<RateBin>& bins) {
  literal::Bins plain;
  for (const RateBin& b : bins) {
    plain.push_back(
        {b.minRateHz, b.maxRateHz, b.maxCount, b.minCount, b.multiplier, b.internalSync, b.range});
  }
  return plain;
}

testing::AssertionResult Same(const std::vector<RateBin>& bins, const literal::Bins& literal) {
  const literal::Bins plain = Plain(bins);
  const auto same = [](const literal::Bin& a, const literal::Bin& b) {
    return a.minRate == b.minRate && a.maxRate == b.maxRate && a.maxCount == b.maxCount &&
           a.minCount == b.minCount && a.multiplier == b.multiplier && a.internal == b.internal &&
           a.range == b.range;
  };
  if (std::ranges::equal(plain, literal, same)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "got " << testing::PrintToString(Counts(bins))
                                     << ", by the rule " << literal.size() << " bins";
}

TEST(RateTable, GivesTheWorkedExampleToTheLastCount) {
  const RateTable table = ComputeRateTable({Range(47.5, 63.0, 2)});
  struct Expected {
    std::uint32_t minCount, maxCount;
    double minRate, maxRate;
    std::uint32_t multiplier;
    bool internal;
    BinOrigin origin;
  };
  const std::vector<Expected> expected{
      {545456, 4294967295U, 0.003492459655621196, 15e6 / 545456, 1, true, BinOrigin::kBottom},
      {526317, 545455, 27.5, 15e6 / 526317, 2, false, BinOrigin::kCandidate},
      {476190, 526316, 28.5, 31.5, 2, false, BinOrigin::kForced},
      {315789, 476189, 15e6 / 476189, 15e6 / 315789, 1, true, BinOrigin::kGap},
      {238095, 315789, 47.5, 15e6 / 238095, 1, false, BinOrigin::kCandidate},
      {0, 238094, 15e6 / 238094, 15e6, 1, true, BinOrigin::kTop}};
  ASSERT_EQ(table.bins.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const RateBin& bin = table.bins[i];
    SCOPED_TRACE(i);
    EXPECT_EQ(bin.minCount, expected[i].minCount);
    EXPECT_EQ(bin.maxCount, expected[i].maxCount);
    EXPECT_EQ(bin.minRateHz, expected[i].minRate);
    EXPECT_EQ(bin.maxRateHz, expected[i].maxRate);
    EXPECT_EQ(bin.multiplier, expected[i].multiplier);
    EXPECT_EQ(bin.internalSync, expected[i].internal);
    EXPECT_EQ(bin.origin, expected[i].origin);
  }
}

TEST(RateTable, StoresWhatItsBinsSay) {
  SequenceRange range = Range(110, 130, 1);
  range.index = 4;
  const std::vector<FreqBinData> stored = ToFreqBins(ComputeRateTable({range}));
  ASSERT_EQ(stored.size(), 4U) << "bottom, forced, the range, top";
  const FreqBinData& bin = stored[2];
  EXPECT_EQ(bin.MinFrameCount, 115385U);
  EXPECT_EQ(bin.MaxFrameCount, 136364U);
  EXPECT_EQ(bin.LookBinIndex, 4);
  EXPECT_EQ(bin.SequenceMultiplier, 1);
  EXPECT_EQ(bin.IsLockToInternalVsync, 0);
  EXPECT_EQ(bin.Enable3d, 1);
  EXPECT_EQ(bin.label, "60");
  EXPECT_EQ(bin.minRateHz, 110.0);
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
  EXPECT_EQ(MakeCandidate(Range(55, 63, 2), 0, 2)->minRateHz, 27.5);
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

TEST(Overlaps, TheWiderOfTwoNeighboursGivesWay) {
  struct Case {
    const char* what;
    std::vector<RateBin> bins;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> left;
  };
  const std::vector<Case> cases{
      {"the slower is wider: the faster loses its slow end",
       {Bin(100, 300), Bin(50, 150)},
       {{100, 300}, {50, 99}}},
      {"the faster is as wide: the slower loses its fast end",
       {Bin(100, 200), Bin(50, 150)},
       {{151, 200}, {50, 150}}},
      {"what is used up goes, and the neighbours are looked at again",
       {Bin(140, 400), Bin(100, 200), Bin(90, 300)},
       {{140, 400}, {90, 139}}},
      {"one tick left is used up", {Bin(100, 300), Bin(98, 150)}, {{100, 300}, {98, 99}}},
      {"touching is no overlap", {Bin(100, 300), Bin(50, 99)}, {{100, 300}, {50, 99}}},
      {"bins of equal fast ends stay", {Bin(100, 300), Bin(100, 150)}, {{100, 300}, {100, 150}}}};
  for (auto [what, bins, left] : cases) {
    ResolveOverlaps(bins);
    EXPECT_EQ(Counts(bins), left) << what;
  }
}

TEST(Gaps, AreNotFilledAboveTheFastestCount) {
  std::vector<RateBin> bins{Bin(1, 1000)};
  FillGaps(bins);
  EXPECT_EQ(Counts(bins),
            (std::vector<std::pair<std::uint32_t, std::uint32_t>>{{1001, kLastCount}, {1, 1000}}));
}

TEST(ForcedBin, MakesRoomAsTheRuleSays) {
  using Left = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
  struct Case {
    const char* what;
    std::vector<RateBin> bins;
    Left left;
  };
  const std::pair<std::uint32_t, std::uint32_t> forced{476190, 526316};
  const std::vector<Case> cases{
      {"a bin that holds it whole keeps its slow part",
       {Bin(1, 900000)},
       {{526317, 900000}, forced}},
      {"both neighbours are trimmed, what lies within goes",
       {Bin(520000, 600000), Bin(480000, 519999), Bin(400000, 479999)},
       {{526317, 600000}, {400000, 476189}, forced}},
      {"bins that end where it ends go",
       {Bin(526317, 600000), Bin(500000, 526316), Bin(476190, 499999), Bin(3, 476189)},
       {{526317, 600000}, {3, 476189}, forced}}};
  for (auto [what, bins, left] : cases) {
    EXPECT_TRUE(PlaceForcedBin(bins)) << what;
    EXPECT_EQ(Counts(bins), left) << what;
  }
  std::vector<RateBin> hole{Bin(526317, 900000), Bin(1, 500000)};
  EXPECT_FALSE(PlaceForcedBin(hole));
  EXPECT_EQ(hole.size(), 2U);
}

TEST(Steps, AgreeWithTheirLiteralReading) {
  constexpr unsigned kSeed = 40201;
  random_ranges::Source source(kSeed);
  for (int set = 0; set < kSets; ++set) {
    const auto ranges = random_ranges::Set(source);
    std::vector<RateBin> bins = MakeCandidates(ranges);
    literal::Bins literal = literal::Candidates(ranges);
    ASSERT_TRUE(Same(bins, literal)) << "candidates of set " << set << ", seed " << kSeed;
    SortBins(bins);
    literal::Sort(literal);
    ASSERT_TRUE(Same(bins, literal)) << "sort of set " << set << ", seed " << kSeed;
    ResolveOverlaps(bins);
    literal::Resolve(literal);
    ASSERT_TRUE(Same(bins, literal)) << "overlaps of set " << set << ", seed " << kSeed;
    if (bins.empty()) continue;
    FillGaps(bins);
    literal::FillGaps(literal);
    ASSERT_TRUE(Same(bins, literal)) << "gaps of set " << set << ", seed " << kSeed;
    ASSERT_EQ(PlaceForcedBin(bins), literal::Force(literal)) << "set " << set;
    ASSERT_TRUE(Same(bins, literal)) << "forced bin of set " << set << ", seed " << kSeed;
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
    SortBins(bins);
    literal::Bins literal = Plain(bins);
    ResolveOverlaps(bins);
    literal::Resolve(literal);
    ASSERT_TRUE(Same(bins, literal)) << "overlaps of set " << set << ", seed " << kSeed;
    if (bins.empty()) continue;
    FillGaps(bins);
    literal::FillGaps(literal);
    ASSERT_EQ(PlaceForcedBin(bins), literal::Force(literal)) << "set " << set << ", seed " << kSeed;
    ASSERT_TRUE(Same(bins, literal)) << "forced bin of set " << set << ", seed " << kSeed;
  }
}

// No two candidates of one fastest count, none with crossed ends, and no end that meets the forced
// bin's to the tick: for these the rules leave nothing to chance.
bool IsPlain(const std::vector<RateBin>& candidates) {
  std::set<std::uint32_t> fastest;
  return std::ranges::all_of(candidates, [&fastest](const RateBin& bin) {
    const auto meets = [](std::uint32_t count) {
      return (count >= kForcedMinCount - 1 && count <= kForcedMinCount + 1) ||
             (count >= kForcedMaxCount - 1 && count <= kForcedMaxCount + 1);
    };
    return fastest.insert(bin.minCount).second && bin.minCount < bin.maxCount &&
           !meets(bin.minCount) && !meets(bin.maxCount);
  });
}

void ExpectWholeTable(const RateTable& table) {
  EXPECT_EQ(std::ranges::count(table.bins, BinOrigin::kForced, &RateBin::origin), 1);
  EXPECT_TRUE(std::ranges::is_sorted(table.bins, std::ranges::greater_equal{}, &RateBin::minCount));
  for (const RateBin& bin : table.bins) {
    EXPECT_LT(bin.minRateHz, bin.maxRateHz);
    if (bin.origin != BinOrigin::kCandidate) {
      EXPECT_EQ(bin.range, 0U);
      continue;
    }
    const SequenceRange& range = table.ranges[bin.range];
    const double lowest = bin.multiplier >= 2 ? std::max(range.minRateHz, 55.0) : range.minRateHz;
    const double slack = 1e-4;  // an end is a whole tick
    EXPECT_GE(bin.minRateHz * bin.multiplier, lowest * (1 - slack));
    EXPECT_LE(bin.maxRateHz * bin.multiplier, range.maxRateHz * (1 + slack));
    EXPECT_FALSE(bin.internalSync);
  }
}

void ExpectKnownHolesOnly(const RateTable& table) {
  const std::vector<FreqBinData> stored = ToFreqBins(table);
  const Coverage coverage = CoverageOf(stored);
  for (const CountSpan& hole : coverage.unserved) {
    EXPECT_EQ(hole.maxCount, kForcedMinCount - 1) << "a hole not beside the forced bin";
  }
  for (const SharedSpan& shared : coverage.shared) {
    EXPECT_EQ(shared.span.minCount, shared.span.maxCount);
    EXPECT_EQ(table.bins[shared.slowerBin].origin, BinOrigin::kGap);
    EXPECT_EQ(shared.slowerBin + 1, shared.fasterBin);
  }
}

TEST(RateTable, HoldsWhatMustHoldOfEveryTable) {
  constexpr unsigned kSeed = 40203;
  random_ranges::Source source(kSeed);
  int plain = 0;
  for (int set = 0; plain < kSets && set < 20 * kSets; ++set) {
    const auto ranges = random_ranges::Set(source);
    const auto candidates = MakeCandidates(ranges);
    if (candidates.empty() || !IsPlain(candidates)) continue;
    ++plain;
    const RateTable table = ComputeRateTable(ranges);
    ExpectWholeTable(table);
    ExpectKnownHolesOnly(table);
    ASSERT_FALSE(HasFailure()) << "set " << set << ", seed " << kSeed;
  }
  EXPECT_EQ(plain, kSets);
}

}  // namespace
}  // namespace frame_rates
