// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/bin_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/project/ost_project.h"

namespace lamp_aging {
namespace {

// 0-9, 9-12, 12-14 with room at every end.
const BinTable kTable{{2, 9, 1.2}, {9, 12, 1.4}, {12, 14, 1.6}};

BinTable Without(BinTable table, std::size_t number) {
  table.erase(BinAt(table, number));
  return table;
}

struct Case {
  const char* rule;
  Bin refused;
  const char* message;
  Bin accepted;  ///< just inside the bound
  BinTable table = kTable;
  int overlap = 0;
};

class BinRules : public testing::TestWithParam<Case> {};

TEST_P(BinRules, RefuseOutsideAndAcceptJustInside) {
  const Case& c = GetParam();
  Limits limits;
  limits.minOverlap = c.overlap;
  EXPECT_EQ(BinFault(c.refused, c.table, limits), std::optional<std::string>(c.message));
  EXPECT_EQ(BinFault(c.accepted, c.table, limits), std::nullopt);
}

const BinTable kWide{{0, 20, 1.2}, {30, 60, 1.8}};
const BinTable kGap{{0, 9, 1.2}, {12, 14, 1.6}};

std::vector<Case> Cases() {
  return {
      {"reaches beyond the bin below",
       {10, 12, 1.5},
       "Error, new ballast upper limit (=12) is less than min allowable upper limit for previous "
       "bin (=13), where the min overlap =0",
       {10, 13, 1.5},
       Without(kTable, 2)},
      {"the same with an overlap",
       {10, 17, 1.5},
       "Error, new ballast upper limit (=17) is less than min allowable upper limit for previous "
       "bin (=18), where the min overlap =3",
       {10, 33, 1.5},
       kWide,
       3},
      {"starts where no other does",
       {9, 10, 1.3},
       "Error, new ballast lower limit (=9) is = to lower limit for advacent bin (=9)",
       {8, 10, 1.3}},
      {"ends within the bin above",
       {8, 13, 1.3},
       "Error, new ballast upper limit (=13) exceeds the upper limit for next bin (=12)",
       {8, 12, 1.3}},
      {"has its limits in order",
       {5, 4, 2.0},
       "Error, upper limit (4) is less than lower limit (5)",
       {5, 5, 2.0},
       {}},
      {"has limits of one byte",
       {14, 256, 2.0},
       "Error, lower or upper limit (256) exceeds max allowed value of 255",
       {14, 255, 2.0}},
      {"touches the bin below",
       {15, 20, 2.0},
       "Error, lower limit for Bin#3 does not overlap upper limit for Bin#2 by the required "
       "minimum amount (=0)",
       {14, 20, 2.0}},
      {"overlaps the bin below",
       {18, 40, 1.5},
       "Error, lower limit for Bin#1 does not overlap upper limit for Bin#0 by the required "
       "minimum amount (=3)",
       {17, 40, 1.5},
       kWide,
       3},
      {"has more amplitude than the bin below",
       {14, 20, 1.6},
       "Error, pulse amplitude ratio is not increasing; new ampl of Bin#3 must be greaterthan "
       "bin#2 ampl = 1.600",
       {14, 20, 1.6000001}},
      {"touches the bin above",
       {9, 11, 1.4},
       "Error, upper limit for Bin#1 does not overlap lower limit for Bin#2 by the required "
       "minimum amount (=0)",
       {9, 12, 1.4},
       kGap},
      {"overlaps the bin above",
       {10, 32, 1.5},
       "Error, upper limit for Bin#1 does not overlap lower limit for Bin#2 by the required "
       "minimum amount (=3)",
       {10, 33, 1.5},
       kWide,
       3},
      {"has less amplitude than the bin above",
       {0, 2, 1.2},
       "Error, pulse amplitude ratio is not increasing; new ampl of Bin#0 must beless than bin#1 "
       "ampl = 1.200",
       {0, 2, 1.1999}},
      {"stays below the maximum amplitude",
       {14, 20, 3.501},
       "Error, pulse amplitude ratio for Bin#3 exceeds maximum allowed amplitude(=3.500)",
       {14, 20, 3.5}},
      {"stays above the minimum amplitude",
       {0, 10, 0.999},
       "Error, pulse amplitude ratio for Bin#0 is below minimum allowed amplitude(=1.000)",
       {0, 10, 1.0},
       {}},
  };
}

INSTANTIATE_TEST_SUITE_P(All, BinRules, testing::ValuesIn(Cases()),
                         [](const auto& tested) { return "Rule" + std::to_string(tested.index); });

TEST(BinRulesOrder, TheFirstFailureIsTold) {
  const Limits limits;
  const auto starts = [&limits](const Bin& bin, const BinTable& table) {
    return BinFault(bin, table, limits).value_or("").substr(0, 34);
  };
  EXPECT_EQ(starts({9, 10, 1.30}, DefaultFeedbackTable()), "Error, new ballast lower limit (=9");
  EXPECT_EQ(starts({20, 300, 9.0}, {}), "Error, lower or upper limit (300) ");
  EXPECT_EQ(starts(MakeBin(-1, 10, 9.0), {}), "Error, upper limit (10) is less th");
  EXPECT_EQ(starts({39, 50, 9.0}, DefaultFeedbackTable()), "Error, max# of allowed entries = 1");
}

TEST(AddBin, NeedsRoom) {
  BinTable table = DefaultFeedbackTable();
  const Bin bin(39, 50, 3.2);
  EXPECT_EQ(AddBin(table, bin, {}), TooManyEntriesText());
  EXPECT_EQ(table, DefaultFeedbackTable());
  EXPECT_TRUE(DeleteBin(table, 4));
  EXPECT_EQ(AddBin(table, bin, {}), std::nullopt);
  EXPECT_EQ(NumberOf(table, bin), 15U);
}

TEST(ProposeBin, StartsAtTheSelectedOrTheLastRow) {
  Limits limits;
  EXPECT_EQ(ProposeBin({}, {}, limits), Bin(0, 0, 2.0));
  EXPECT_EQ(ProposeBin(kTable, {}, limits), Bin(14, 22, 1.6 + 0.2));
  EXPECT_EQ(ProposeBin(kTable, 0, limits), Bin(9, 9, 1.2 + 0.2));
  EXPECT_EQ(ProposeBin({{250, 252, 1.23456}}, {}, limits), Bin(252, 255, 1.235 + 0.2))
      << "up to 255, and from the amplitude as it is shown";
  limits = {.maxAmplitude = 1.7, .minOverlap = 3};
  EXPECT_EQ(ProposeBin(kTable, {}, limits).m_avgPulseAmplitude, 1.7);
  EXPECT_EQ(ProposeBin(kTable, 1, limits), Bin(9, 15, 1.6)) << "not 1.5999999999999999";
  EXPECT_EQ(ProposeBin({{0, 2, 1.0}}, 0, limits), Bin(0, 6, 1.2)) << "not below 0";
  EXPECT_EQ(ProposeBin({}, {}, limits), Bin(0, 6, 2.0));
}

TEST(ChangeBin, LeavesTheTableWhenRefused) {
  BinTable table = kTable;
  EXPECT_NE(ChangeBin(table, 1, {10, 12, 1.4}, {}), std::nullopt) << "would open a hole";
  EXPECT_EQ(table, kTable);
  EXPECT_EQ(ChangeBin(table, 1, {9, 13, 1.5}, {}), std::nullopt);
  EXPECT_EQ(*BinAt(table, 1), Bin(9, 13, 1.5));
  EXPECT_EQ(table.size(), 3U);

  BinTable only = DefaultNoFeedbackTable();
  EXPECT_EQ(ChangeOnlyBin(only, {0, 0, 3.6}, {}),
            "Error, pulse amplitude ratio for Bin#0 exceeds maximum allowed amplitude(=3.500)");
  EXPECT_EQ(only, DefaultNoFeedbackTable());
  EXPECT_EQ(ChangeOnlyBin(only, {0, 0, 3.5}, {}), std::nullopt);
  EXPECT_EQ(only, (BinTable{{0, 0, 3.5}}));
}

TEST(DeleteBin, KeepsTheLastOne) {
  BinTable table = kTable;
  EXPECT_FALSE(DeleteBin(table, 3));
  EXPECT_TRUE(DeleteBin(table, 0));
  EXPECT_TRUE(DeleteBin(table, 1));
  EXPECT_FALSE(DeleteBin(table, 0));
  EXPECT_EQ(table, (BinTable{{9, 12, 1.4}}));
}

TEST(Limits, TakeTheMaximumAmplitudeFromTheProject) {
  OstProject project;
  EXPECT_EQ(ReadLimits(project).maxAmplitude, 3.5);
  project.SetKey("projectclass.lamppulse.max_allowed_amplitude", "2.75");
  EXPECT_EQ(ReadLimits(project).maxAmplitude, 2.75);
  EXPECT_EQ(ReadLimits(project).minAmplitude, 1.0);
}

TEST(ListRows, ShowTheBinsInOrder) {
  using testing::ElementsAre;
  EXPECT_THAT(FeedbackRows({{200, 65535, 1.36}, {0, 9, 1.12345}}),
              ElementsAre(ElementsAre("    0  ", "  0", "  9", "1.123"),
                          ElementsAre("    1  ", "200", "65535", "1.360")));
  EXPECT_THAT(NoFeedbackRows(DefaultNoFeedbackTable()),
              ElementsAre(ElementsAre("    0  ", "1.760")));
  EXPECT_EQ(FeedbackRows(DefaultFeedbackTable()).size(), 16U);
}

}  // namespace
}  // namespace lamp_aging
