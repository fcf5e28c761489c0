// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/lamp_aging_findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "host/project/ost_project.h"
#include "pages/lamp_aging/rules/curve.h"
#include "pages/lamp_aging/rules/working_tables.h"

namespace lamp_aging {
namespace {

using testing::ElementsAre;

TEST(Curve, HasAStepABinAndKnowsItsHoles) {
  const BinTable table{{3, 9, 1.2}, {7, 5, 1.3}, {8, 12, 1.4}, {12, 14, 1.6}, {250, 300, 1.7}};
  EXPECT_THAT(CurveSteps(table),
              ElementsAre(CurveStep{0, 3, 9, 1.2}, CurveStep{2, 8, 12, 1.4},
                          CurveStep{3, 12, 14, 1.6}, CurveStep{4, 250, 300, 1.7}))
      << "crossed limits cover nothing";
  EXPECT_THAT(UncoveredValues(table), ElementsAre(FeedbackSpan{0, 2}, FeedbackSpan{15, 249}));
  EXPECT_THAT(UncoveredValues({{300, 301, 1.0}}), ElementsAre(FeedbackSpan{0, 255}));
  EXPECT_THAT(FindSharedValues(table),
              ElementsAre(SharedValues{0, 2, {8, 9}}, SharedValues{2, 3, {12, 12}}));
  EXPECT_EQ(ProbeText(table, 12),
            "Feedback value 12: Bin#2, amplitude 1.400; Bin#3, amplitude 1.600.");
}

class LampAgingFindings : public testing::Test {
 protected:
  LampAgingFindings() {
    project_.SetKey("projectclass.seqrange.group1.spinfactor1", "2");
    project_.SetKey("projectclass.seqrange.group2.spinfactor1", "3");
  }

  static void Put(SlrPulseAmpDataGroupVec& groups, double spinFactor, BinTable table) {
    groups.emplace_back();
    groups.back().m_spinFactor = spinFactor;
    groups.back().m_SlrPulseAmpDataTable = std::move(table);
  }

  std::vector<std::string> Of(const BinTable& table) {
    LampAgingPageData data;
    Put(data.m_VecpulseAmpDataFeedBackGroup, 2, table);
    return Rules(data);
  }

  std::vector<std::string> Rules(const LampAgingPageData& data) const {
    std::vector<std::string> rules;
    for (const Finding& finding : Check(data, project_)) {
      const bool error = finding.severity == Severity::kError;
      rules.push_back((error ? "error " : "warning ") + finding.rule.substr(11));
    }
    return rules;
  }

  OstProject project_;
};

TEST_F(LampAgingFindings, TellWhatIsWrongWithATable) {
  EXPECT_THAT(Of({{0, 9, 1.1}, {9, 255, 1.2}}), ElementsAre());
  EXPECT_THAT(Of(DefaultFeedbackTable()), ElementsAre("warning uncovered")) << "40 to 255";
  EXPECT_THAT(Of({{0, 9, 1.1}, {11, 255, 1.2}}), ElementsAre("warning uncovered"));
  EXPECT_THAT(Of({{0, 9, 1.1}, {8, 255, 1.2}}), ElementsAre("warning overlap"));
  EXPECT_THAT(Of({{0, 9, 1.1}, {8, 9, 1.2}, {9, 255, 1.3}}), ElementsAre("warning overlap"));
  EXPECT_THAT(Of({{0, 9, 1.1}, {9, 9, 1.2}, {10, 255, 1.3}}), ElementsAre());
  EXPECT_THAT(Of({{0, 255, 1.1}, {9, 12, 1.2}}), ElementsAre("error order", "warning overlap"));
  EXPECT_THAT(Of({{0, 9, 1.2}, {9, 255, 1.2}}), ElementsAre("error amplitude-order"));
  EXPECT_THAT(Of({{0, 9, 0.9}, {9, 255, 3.6}}),
              ElementsAre("error amplitude-range", "error amplitude-range"));
  EXPECT_THAT(Of({{0, 255, std::nan("")}}), ElementsAre("error amplitude-range"));
  EXPECT_THAT(Of({{0, 256, 1.1}}), ElementsAre("error limits"));
  EXPECT_THAT(Of({{0, 255, 1.1}, {9, 5, 1.2}}), ElementsAre("error limits", "error order"));
  BinTable full;
  for (int i = 0; i < 17; ++i) {
    full.insert(MakeBin(i * 10, i == 16 ? 255 : i * 10 + 10, 1.1 + i / 10.0));
  }
  EXPECT_THAT(Of(full), ElementsAre("error entries"));
}

TEST_F(LampAgingFindings, TellWhatIsWrongWithTheGroups) {
  LampAgingPageData data;
  data.m_ballast_type = 2;
  Put(data.m_VecpulseAmpDataNoFeedBackGroup, 2, {{0, 0, 9.0}, {1, 1, 1.5}});
  Put(data.m_VecpulseAmpDataNoFeedBackGroup, 2.5, {{0, 0, 1.5}});
  Put(data.m_VecpulseAmpDataNoFeedBackGroup, 2, {{0, 0, 1.5}});
  EXPECT_THAT(Rules(data),
              ElementsAre("error ballast-type", "warning single-bin", "error amplitude-range",
                          "warning unknown-spin-factor", "warning repeated-group"));
  EXPECT_EQ(Check(data, project_)[2].text,
            "no feedback, spin factor 2: amplitude 9 of Bin#0 is outside 1.000 to 3.500");
}

}  // namespace
}  // namespace lamp_aging
