// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "model/lamp_aging_page_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/support/round_trip.h"

namespace {

using archive_test::ExpectStored;
using archive_test::ReadContent;

std::string BinXml(int lower, int upper, const char* amplitude) {
  return std::string("<item><Version>1</Version><m_avgPulseAmplitude>") + amplitude +
         "</m_avgPulseAmplitude><m_lowerBallastVal>" + std::to_string(lower) +
         "</m_lowerBallastVal><m_upperBallastVal>" + std::to_string(upper) +
         "</m_upperBallastVal></item>";
}

TEST(LampAgingPageData, ReadsAndWritesItsElements) {
  const auto data = ExpectStored<LampAgingPageData>(
      "<m_VecpulseAmpDataFeedBackGroup><count>1</count><item><Version>1</Version>"
      "<m_spinFactor>2.5</m_spinFactor><m_seqType><Title>Video</Title></m_seqType>"
      "<m_title>Tübingen</m_title><m_SlrPulseAmpDataTable><count>3</count>" +
      BinXml(5, 9, "1.5") + BinXml(255, 300, "2") + BinXml(65535, 0, "3") +
      "</m_SlrPulseAmpDataTable></item></m_VecpulseAmpDataFeedBackGroup>"
      "<m_VecpulseAmpDataNoFeedBackGroup><count>0</count></m_VecpulseAmpDataNoFeedBackGroup>"
      "<m_ballast_type>0</m_ballast_type>");
  const SlrPulseAmpDataGroup& group = data.m_VecpulseAmpDataFeedBackGroup.at(0);
  EXPECT_EQ(group.m_title, "Tübingen");
  EXPECT_THAT(group.m_SlrPulseAmpDataTable,
              testing::ElementsAre(SlrPulseAmpData(5, 9, 1.5), SlrPulseAmpData(255, 300, 2.0),
                                   SlrPulseAmpData(65535, 0, 3.0)));
}

TEST(SlrPulseAmpDataGroup, KeepsTheFirstBinOfALowerValueInAscendingOrder) {
  auto group = ReadContent<SlrPulseAmpDataGroup>(
      "<m_spinFactor>3</m_spinFactor><m_SlrPulseAmpDataTable><count>4</count>" +
      BinXml(300, 310, "2") + BinXml(5, 9, "1.5") + BinXml(5, 12, "2") + BinXml(255, 256, "1.75") +
      "</m_SlrPulseAmpDataTable>");
  EXPECT_EQ(group.m_spinFactor, 3) << "a Version element may be missing";
  EXPECT_EQ(group.m_title, "");
  EXPECT_THAT(group.m_SlrPulseAmpDataTable,
              testing::ElementsAre(SlrPulseAmpData(5, 9, 1.5), SlrPulseAmpData(255, 256, 1.75),
                                   SlrPulseAmpData(300, 310, 2.0)));
}

}  // namespace
