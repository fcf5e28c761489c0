// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/frame_rate_findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/frame_rates/rules/coverage.h"
#include "pages/frame_rates/rules/rate_bin.h"
#include "pages/frame_rates/rules/rate_table.h"
#include "pages/frame_rates/rules/selection.h"
#include "pages/frame_rates/rules/sequence_keys.h"

namespace frame_rates {
namespace {

using testing::ElementsAre;

FreqBinData Bin(std::uint32_t minCount, std::uint32_t maxCount) {
  FreqBinData bin;
  bin.MinFrameCount = minCount;
  bin.MaxFrameCount = maxCount;
  return bin;
}

TEST(Coverage, FindsHolesAndSharedCounts) {
  const std::vector<FreqBinData> table{Bin(200, kLastCount), Bin(150, 120), Bin(100, 199),
                                       Bin(50, 100),         Bin(60, 70),   Bin(2, 40)};
  const Coverage coverage = CoverageOf(table);
  EXPECT_THAT(coverage.unserved, ElementsAre(CountSpan{1, 1}, CountSpan{41, 49}));
  EXPECT_THAT(coverage.shared,
              ElementsAre(SharedSpan{{60, 70}, 4, 3}, SharedSpan{{100, 100}, 2, 3}));
  EXPECT_THAT(CoverageOf({}).unserved, ElementsAre(CountSpan{1, kLastCount}));
  EXPECT_THAT(CoverageOf(std::vector{Bin(0, 0)}).unserved, ElementsAre(CountSpan{1, kLastCount}));
  EXPECT_THAT(CoverageOf(std::vector{Bin(0, kLastCount)}).unserved, ElementsAre());
}

class FrameRateFindings : public testing::Test {
 protected:
  FrameRateFindings() {
    SetRange(project_, 1, "60", "47.5", "63", "2");
    SetRange(project_, 2, "120", "95", "126", "1");
    Select({60});
  }

  /// The selection as the page would store it, with its table.
  void Select(std::vector<double> rates) {
    data_.FrameRates = std::move(rates);
    data_.FreqBinTable = ToFreqBins(
        ComputeRateTable(SelectedRanges(ReadSequenceRanges(project_), data_.FrameRates)));
  }

  std::vector<std::string> Rules() const {
    std::vector<std::string> rules;
    for (const Finding& finding : Check(data_, project_)) {
      const bool error = finding.severity == Severity::kError;
      rules.push_back((error ? "error " : "warning ") + finding.rule.substr(12));
    }
    return rules;
  }

  OstProject project_;
  SysDefFrameRatesPageData data_;
};

TEST_F(FrameRateFindings, TellOfTheSpansThatTheRulesLeave) {
  const Findings findings = Check(data_, project_);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].severity, Severity::kWarning);
  EXPECT_EQ(findings[0].text,
            "two bins, 3 and 4, share the source rates 47.50 Hz (frame count 315789)");
  SetRange(project_, 1, "60", "47.5", "63", "1");
  Select({60});
  EXPECT_THAT(Rules(), ElementsAre("warning unserved")) << "a bin held the whole forced window";
}

TEST_F(FrameRateFindings, TellOfATableThatIsNotTheOneOfItsSelection) {
  data_.FreqBinTable[4].Enable3d = 1;
  EXPECT_THAT(Check(data_, project_)[0].text, testing::EndsWith("the first difference is bin 4"));
  EXPECT_THAT(Rules(), ElementsAre("error stale-table", "warning shared"));
  Select({60});
  data_.FreqBinTable.pop_back();
  EXPECT_THAT(Rules(), ElementsAre("error stale-table", "warning unserved", "warning shared"));
  data_.FreqBinTable[0].label = "not stored, so not compared";
  data_.FrameRates = {};
  data_.FreqBinTable = {};
  EXPECT_THAT(Rules(), ElementsAre("warning unserved")) << "nothing selected, nothing served";
}

TEST_F(FrameRateFindings, TellOfSelectionsAndKeysThatDoNotFit) {
  Select({120});
  EXPECT_THAT(Rules(), testing::Contains("warning default-range"));
  Select({60, 61});
  EXPECT_THAT(Rules(), ElementsAre("error unknown-rate", "warning shared"));
  SetRange(project_, 2, "120", "126", "95", "0", "2,x");
  Select({60});
  EXPECT_THAT(Rules(), ElementsAre("warning shared")) << "a range that is not selected";
  Select({60, 120});
  EXPECT_THAT(Rules(), ElementsAre("error range-rates", "error range-multiplier",
                                   "warning range-skips", "warning shared"));
  SetRange(project_, 2, "52", "49", "53", "2");
  project_.SetKey("projectclass.seqrange.maxseq", "257");
  Select({52});
  const auto rules = Rules();
  EXPECT_THAT(rules, testing::Contains("warning range-count"));
  EXPECT_THAT(rules, testing::Contains("warning crossed-bin"));
}

}  // namespace
}  // namespace frame_rates
