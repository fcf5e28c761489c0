// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/explanation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace frame_rates {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

SequenceRange Range(const char* label, int index, double low, double high, int multipliers) {
  SequenceRange range;
  range.label = label;
  range.index = index;
  range.minRateHz = low;
  range.maxRateHz = high;
  range.maxMultiplier = multipliers;
  range.enable3d = range.Holds(k3dHz);
  return range;
}

TEST(Explanation, SaysWhereEveryBinOfTheWorkedExampleComesFrom) {
  const RateTable table = ComputeRateTable({Range("60.0", 0, 47.5, 63.0, 2)});
  EXPECT_EQ(Explain(table, "47.95"),
            "47.95 Hz (frame count 312826) is served by the bin 47.50 - 63.00 Hz (frame counts "
            "238095 to 315789), locked to the source (LEV), by sequence range 60.0 with multiplier "
            "1. It is the candidate of sequence range 60.0 with multiplier 1.");
  EXPECT_THAT(Explain(table, "28"),
              AllOf(HasSubstr("the candidate of sequence range 60.0 with multiplier 2."),
                    HasSubstr("fast end was trimmed by the forced bin."), Not(HasSubstr("slow"))));
  EXPECT_THAT(Explain(table, "30"), HasSubstr("It is the forced bin"));
  EXPECT_THAT(Explain(table, "40"),
              AllOf(HasSubstr("on internal sync (LIV)"), HasSubstr("fills the gap")));
  EXPECT_THAT(Explain(table, "5"), HasSubstr("below the slowest"));
  EXPECT_THAT(Explain(table, "5000"), HasSubstr("above the fastest"));
}

TEST(Explanation, NamesTheNeighbourThatTrimmedABin) {
  const SequenceRange fast = Range("120", 3, 62.0, 126.0, 1);
  const RateTable narrow = ComputeRateTable({Range("60", 0, 47.5, 63.0, 1), fast});
  EXPECT_THAT(Explain(narrow, "61"),
              HasSubstr("Its fast end was trimmed by its neighbour, the candidate of sequence "
                        "range 120 with multiplier 1."));
  const RateTable wide = ComputeRateTable({Range("60", 0, 30.0, 63.0, 1), fast});
  EXPECT_THAT(Explain(wide, "64"),
              AllOf(HasSubstr("by sequence range 120 with multiplier 1, 3D possible."),
                    HasSubstr("Its slow end was trimmed by its neighbour, the candidate of "
                              "sequence range 60 with multiplier 1.")));
}

TEST(Explanation, SaysWhenNoBinOrTwoServeARate) {
  const RateTable table = ComputeRateTable({Range("60", 0, 47.5, 63.0, 1)});
  EXPECT_EQ(Explain(table, "40"),
            "No bin serves 40 Hz (frame count 375000). It lies between the bins 28.50 - 31.50 Hz "
            "(frame counts 476190 to 526316) and 47.50 - 63.00 Hz (frame counts 238095 to 315789). "
            "What reached across the forced bin kept only its slow part.");
  const RateTable gap = ComputeRateTable({Range("60", 0, 47.5, 63.0, 2)});
  EXPECT_THAT(Explain(gap, "47.5"),
              AllOf(HasSubstr("LIV"), HasSubstr("\nIt is also served by"), HasSubstr("LEV")));
  EXPECT_THAT(Explain(ComputeRateTable({}), "60"), HasSubstr("No bin serves 60 Hz: "));
}

TEST(Explanation, SaysWhenARateCannotBeCounted) {
  const RateTable table = ComputeRateTable({Range("60", 0, 47.5, 63.0, 1)});
  for (const char* typed : {"0", "-60", "0.001", "40000000"}) {
    EXPECT_THAT(Explain(table, typed), HasSubstr("has no frame count")) << typed;
  }
  for (const char* typed : {"", "60 Hz", "nan", "1e999"}) {
    EXPECT_THAT(Explain(table, typed), HasSubstr("is not a source rate")) << typed;
  }
}

}  // namespace
}  // namespace frame_rates
