// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "model/frame_rates_page_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/support/round_trip.h"

namespace {

using archive_test::ReadContent;
using archive_test::Written;

const char* const kContent =
    "<FrameRates><count>2</count><item>60</item><item>59.939999999999998</item></FrameRates>"
    "<FreqBinTable><count>1</count><item><MaxFrameCount>4294967295</MaxFrameCount>"
    "<MinFrameCount>545456</MinFrameCount><LookBinIndex>5</LookBinIndex>"
    "<SequenceMultiplier>2</SequenceMultiplier>"
    "<IsLockToInternalVsync>1</IsLockToInternalVsync><Enable3d>1</Enable3d></item></FreqBinTable>";

TEST(SysDefFrameRatesPageData, ReadsAndWritesItsElements) {
  auto data = ReadContent<SysDefFrameRatesPageData>(kContent);
  EXPECT_THAT(data.FrameRates, testing::ElementsAre(60, 59.94));
  ASSERT_EQ(data.FreqBinTable.size(), 1U);
  const FreqBinData& bin = data.FreqBinTable[0];
  EXPECT_EQ(bin.MaxFrameCount, 4294967295U);
  EXPECT_EQ(bin.MinFrameCount, 545456U);
  EXPECT_EQ(bin.LookBinIndex, 5);
  EXPECT_EQ(bin.SequenceMultiplier, 2) << "a number, not a character";
  EXPECT_EQ(bin.IsLockToInternalVsync, 1);
  EXPECT_EQ(bin.Enable3d, 1);

  data.FreqBinTable[0].label = "not stored";
  data.displayTable = data.FreqBinTable;
  EXPECT_EQ(Written(data, "Inputs"), "<Inputs>" + std::string(kContent) + "</Inputs>");
}

}  // namespace
