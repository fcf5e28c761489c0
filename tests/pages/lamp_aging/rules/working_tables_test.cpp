// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/working_tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/project/ost_project.h"

namespace lamp_aging {
namespace {

using testing::ElementsAre;

class SpinFactors : public testing::Test {
 protected:
  void SetKey(int group, int number, const char* text) {
    project_.SetKey("projectclass.seqrange.group" + std::to_string(group) + ".spinfactor" +
                        std::to_string(number),
                    text);
  }
  std::vector<std::string> Texts() {
    AppendSpinFactors(project_, factors_);
    std::vector<std::string> texts;
    for (const SpinFactor& factor : factors_) {
      texts.push_back(factor.text);
    }
    return texts;
  }
  OstProject project_;
  std::vector<SpinFactor> factors_;
};

TEST_F(SpinFactors, AreTheOnesOfAllGroupsWithTheirTexts) {
  EXPECT_THAT(Texts(), ElementsAre());
  SetKey(1, 1, "2.0");
  SetKey(1, 2, "3");
  SetKey(1, 4, "5") /* behind a hole */;
  SetKey(4, 1, "1.5x");
  SetKey(5, 1, "9") /* no such group */;
  EXPECT_THAT(Texts(), ElementsAre("2.0", "3", "1.5x"));
  EXPECT_EQ(factors_[2].value, 1.5);
  EXPECT_THAT(Texts(), ElementsAre("2.0", "3", "1.5x")) << "read again: nothing twice";
}

TEST_F(SpinFactors, AGroupEndsAtOneThatIsKnown) {
  SetKey(1, 1, "2");
  SetKey(2, 1, "2.00");
  SetKey(2, 2, "7");
  SetKey(3, 1, "4");
  SetKey(3, 2, "2");
  SetKey(3, 3, "8");
  SetKey(4, 1, "6");
  EXPECT_THAT(Texts(), ElementsAre("2", "4", "6"));
}

const std::vector<SpinFactor> kFactors{{2, "2"}, {3, "3"}};

SlrPulseAmpDataGroup Group(double spinFactor, BinTable table) {
  SlrPulseAmpDataGroup group;
  group.m_spinFactor = spinFactor;
  group.m_SlrPulseAmpDataTable = std::move(table);
  return group;
}

TEST(WorkingTables, ComeFromTheGroupsOfTheSpinFactor) {
  LampAgingPageData data;
  data.m_VecpulseAmpDataFeedBackGroup.push_back(Group(2, {{0, 5, 1.1}}));
  data.m_VecpulseAmpDataFeedBackGroup.push_back(Group(2, {{0, 5, 1.9}}));
  data.m_VecpulseAmpDataNoFeedBackGroup.push_back(Group(2, {{0, 0, 1.3}}));
  data.m_VecpulseAmpDataNoFeedBackGroup.push_back(Group(2, {{0, 0, 1.4}}));
  WorkingTables tables;
  LoadTables(data, 2, tables);
  EXPECT_EQ(tables.feedback, (BinTable{{0, 5, 1.1}})) << "the first group";
  EXPECT_EQ(tables.noFeedback, (BinTable{{0, 0, 1.4}})) << "the last group";
  LoadTables(data, 3, tables);
  EXPECT_TRUE(tables.feedback.empty());
  EXPECT_EQ(tables.noFeedback, (BinTable{{0, 0, 1.4}})) << "carried over";
  EXPECT_EQ(ShownTable(tables, kSendsFeedback), DefaultFeedbackTable());
  EXPECT_EQ(ShownTable(tables, kNoFeedback), tables.noFeedback);
  tables.noFeedback.clear();
  EXPECT_EQ(ShownTable(tables, kNoFeedback), DefaultNoFeedbackTable());
}

TEST(WorkingTables, AreStoredAsGroupsOfTheSpinFactor) {
  LampAgingPageData data;
  WorkingTables tables{{{0, 5, 1.1}}, {}};
  EXPECT_TRUE(StoreTables(tables, kSendsFeedback, 3, kFactors, data));
  EXPECT_EQ(data.m_ballast_type, kSendsFeedback);
  ASSERT_EQ(data.m_VecpulseAmpDataFeedBackGroup.size(), 1U);
  EXPECT_EQ(data.m_VecpulseAmpDataFeedBackGroup[0], Group(3, {{0, 5, 1.1}}));
  EXPECT_TRUE(data.m_VecpulseAmpDataNoFeedBackGroup.empty()) << "an empty table is not stored";

  EXPECT_FALSE(StoreTables(tables, kSendsFeedback, 3, kFactors, data)) << "nothing new";
  tables = {{{0, 5, 1.2}}, {{0, 0, 1.3}}};
  EXPECT_TRUE(StoreTables(tables, kSendsFeedback, 3, kFactors, data));
  EXPECT_EQ(data.m_VecpulseAmpDataFeedBackGroup[0], Group(3, {{0, 5, 1.2}}));
  EXPECT_EQ(data.m_VecpulseAmpDataNoFeedBackGroup.at(0), Group(3, {{0, 0, 1.3}}));

  EXPECT_FALSE(StoreTables(tables, kNoFeedback, 4, kFactors, data)) << "not a spin factor";
  EXPECT_EQ(data.m_ballast_type, kNoFeedback);
  EXPECT_EQ(data.m_VecpulseAmpDataFeedBackGroup.size(), 1U);
}

}  // namespace
}  // namespace lamp_aging
