// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/working_tables.h"

#include <gtest/gtest.h>

namespace lamp_aging {
namespace {

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

}  // namespace
}  // namespace lamp_aging
