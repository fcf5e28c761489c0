// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/frame_rates/rules/sequence_keys.h"

namespace frame_rates {
namespace {

using testing::ElementsAre;

TEST(SequenceRanges, AreReadUpToTheFirstWithoutABaseRate) {
  OstProject project;
  SetRange(project, 1, "50.000", "45", "52", "4", "2,3");
  SetRange(project, 2, "60", "47.5", "63", "2");
  SetRange(project, 4, "120", "110", "130", "1");
  std::vector<SequenceRange> ranges = ReadSequenceRanges(project);
  ASSERT_EQ(ranges.size(), 2U) << "range 3 has no base rate";
  EXPECT_EQ(ranges[0].label, "50.000") << "as the project writes it";
  EXPECT_EQ(ranges[1].index, 1);
  EXPECT_EQ(ItemText(ranges[1]), "60.00 Hz (47.50 - 63.00 Hz)");
  EXPECT_FALSE(ranges[1].enable3d);

  project.SetKey("projectclass.seqrange.group1.seq3.basehz", "96");
  ranges = ReadSequenceRanges(project);
  ASSERT_EQ(ranges.size(), 4U);
  EXPECT_EQ(ItemText(ranges[2]), "96.00 Hz (0.00 - 0.00 Hz)") << "absent keys are nothing";
  EXPECT_EQ(ranges[2].maxMultiplier, 0);
  SetRange(project, 3, "96", "90", "120", "1");
  ranges = ReadSequenceRanges(project);
  EXPECT_TRUE(ranges[2].enable3d) << "the ends belong to the range";
  project.SetKey("projectclass.seqrange.maxseq", "1");
  EXPECT_EQ(ReadSequenceRanges(project).size(), 1U);
}

TEST(SkipList, IsSplitAtItsCommas) {
  EXPECT_THAT(ParseSkipList("2,3, 5"), ElementsAre(2, 3, 5));
  EXPECT_THAT(ParseSkipList("7x,,-2"), ElementsAre(7, 0, -2));
  EXPECT_THAT(ParseSkipList("99999999999"), ElementsAre(2147483647));
}

TEST(Selection, IsStoredInListOrder) {
  OstProject project;
  SetRange(project, 1, "50", "45", "52", "4");
  SetRange(project, 2, "63", "60", "66", "2");
  const std::vector<SequenceRange> ranges = ReadSequenceRanges(project);
  std::vector<double> rates{63, 50};
  EXPECT_TRUE(StoreSelection(ranges, {true, true}, rates));
  EXPECT_THAT(rates, ElementsAre(50, 63));
  EXPECT_FALSE(StoreSelection(ranges, {true, true}, rates));
  EXPECT_TRUE(CanToggle(ranges[0]));
  EXPECT_FALSE(CanToggle(ranges[1])) << "60 Hz is its end";
}

}  // namespace
}  // namespace frame_rates
