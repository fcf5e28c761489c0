// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/bin_rules.h"

#include <gtest/gtest.h>

namespace lamp_aging {
namespace {

const BinTable kTable{{2, 9, 1.2}, {9, 12, 1.4}, {12, 14, 1.6}};
const BinTable kWide{{0, 20, 1.2}, {30, 60, 1.8}};
const BinTable kGap{{0, 9, 1.2}, {12, 14, 1.6}};

TEST(BinRules, RefuseOutsideAndAcceptJustInside) {
  const struct {
    Bin refused, accepted;
    const char* message;
    BinTable table = kTable;
    int overlap = 0;
  } cases[] = {
      {{10, 12, 1.5},
       {10, 13, 1.5},
       "new ballast upper limit (=12) is less than min allowable upper limit for previous bin "
       "(=13), where the min overlap =0",
       {{2, 9, 1.2}, {9, 12, 1.4}}},
      {{10, 17, 1.5},
       {10, 33, 1.5},
       "new ballast upper limit (=17) is less than min allowable upper limit for previous bin "
       "(=18), where the min overlap =3",
       kWide,
       3},
      {{9, 10, 1.3},
       {8, 10, 1.3},
       "new ballast lower limit (=9) is = to lower limit for advacent bin (=9)"},
      {{8, 13, 1.3},
       {8, 12, 1.3},
       "new ballast upper limit (=13) exceeds the upper limit for next bin (=12)"},
      {{5, 4, 2.0}, {5, 5, 2.0}, "upper limit (4) is less than lower limit (5)", {}},
      {{14, 256, 2.0},
       {14, 255, 2.0},
       "lower or upper limit (256) exceeds max allowed value of 255"},
      {{15, 20, 2.0},
       {14, 20, 2.0},
       "lower limit for Bin#3 does not overlap upper limit for Bin#2 by the required minimum "
       "amount (=0)"},
      {{18, 40, 1.5},
       {17, 40, 1.5},
       "lower limit for Bin#1 does not overlap upper limit for Bin#0 by the required minimum "
       "amount (=3)",
       kWide,
       3},
      {{14, 20, 1.6},
       {14, 20, 1.6000001},
       "pulse amplitude ratio is not increasing; new ampl of Bin#3 must be greaterthan bin#2 ampl "
       "= 1.600"},
      {{9, 11, 1.4},
       {9, 12, 1.4},
       "upper limit for Bin#1 does not overlap lower limit for Bin#2 by the required minimum "
       "amount (=0)",
       kGap},
      {{10, 32, 1.5},
       {10, 33, 1.5},
       "upper limit for Bin#1 does not overlap lower limit for Bin#2 by the required minimum "
       "amount (=3)",
       kWide,
       3},
      {{0, 2, 1.2},
       {0, 2, 1.1999},
       "pulse amplitude ratio is not increasing; new ampl of Bin#0 must beless than bin#1 ampl = "
       "1.200"},
      {{14, 20, 3.501},
       {14, 20, 3.5},
       "pulse amplitude ratio for Bin#3 exceeds maximum allowed amplitude(=3.500)"},
      {{0, 10, 0.999},
       {0, 10, 1.0},
       "pulse amplitude ratio for Bin#0 is below minimum allowed amplitude(=1.000)",
       {}}};
  for (const auto& [refused, accepted, message, table, overlap] : cases) {
    const Limits limits{.minOverlap = overlap};
    EXPECT_EQ(BinFault(refused, table, limits).value_or(""), std::string("Error, ") + message);
    EXPECT_EQ(BinFault(accepted, table, limits), std::nullopt) << message;
  }
}

TEST(BinRules, TheFirstFailureIsTold) {
  const Limits limits;
  const auto starts = [&limits](const Bin& bin, const BinTable& table) {
    return BinFault(bin, table, limits).value_or("").substr(0, 34);
  };
  EXPECT_EQ(starts({9, 10, 1.30}, DefaultFeedbackTable()), "Error, new ballast lower limit (=9");
  EXPECT_EQ(starts({20, 300, 9.0}, {}), "Error, lower or upper limit (300) ");
  EXPECT_EQ(starts(MakeBin(-1, 10, 9.0), {}), "Error, upper limit (10) is less th");
  EXPECT_EQ(starts({39, 50, 9.0}, DefaultFeedbackTable()), "Error, max# of allowed entries = 1");
}

TEST(BinRules, NothingIsDeletedBehindTheLastBin) {
  BinTable table = kTable;
  EXPECT_FALSE(DeleteBin(table, 3));
  EXPECT_EQ(table, kTable);
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

}  // namespace
}  // namespace lamp_aging
