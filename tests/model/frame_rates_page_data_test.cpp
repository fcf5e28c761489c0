// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "model/frame_rates_page_data.h"

#include <gtest/gtest.h>

#include "archive/support/round_trip.h"

namespace {

using archive_test::ExpectStored;

TEST(SysDefFrameRatesPageData, ReadsAndWritesItsElements) {
  auto data = ExpectStored<SysDefFrameRatesPageData>(
      "<FrameRates><count>2</count><item>60</item><item>59.939999999999998</item></FrameRates>"
      "<FreqBinTable><count>1</count><item><MaxFrameCount>4294967295</MaxFrameCount>"
      "<MinFrameCount>545456</MinFrameCount><LookBinIndex>5</LookBinIndex>"
      "<SequenceMultiplier>2</SequenceMultiplier>"
      "<IsLockToInternalVsync>1</IsLockToInternalVsync><Enable3d>1</Enable3d></item></"
      "FreqBinTable>");
  EXPECT_EQ(data.FreqBinTable.at(0).MinFrameCount, 545456U);
  EXPECT_EQ(data.FreqBinTable[0].SequenceMultiplier, 2) << "a number, not a character";
  const std::string text = archive_test::Written(data);
  data.FreqBinTable[0].label = "not stored";
  data.displayTable = data.FreqBinTable;
  EXPECT_EQ(archive_test::Written(data), text);
}

}  // namespace
