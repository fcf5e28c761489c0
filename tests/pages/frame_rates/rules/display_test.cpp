// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace frame_rates {
namespace {

using testing::ElementsAre;

FreqBinData Bin(const char* label, bool internal, double low, double high) {
  FreqBinData bin;
  bin.label = label;
  bin.IsLockToInternalVsync = internal ? 1 : 0;
  bin.minRateHz = low;
  bin.maxRateHz = high;
  return bin;
}

std::vector<std::string> Texts(const std::vector<FreqBinData>& table) {
  std::vector<std::string> texts;
  for (const DisplayRow& row : MergeForDisplay(table)) {
    texts.push_back(RateText(row.bin) + " " + SyncText(row.bin) + " " +
                    std::to_string(row.firstBin) + "-" + std::to_string(row.lastBin));
  }
  return texts;
}

TEST(Display, MergesNeighboursOfOneRangeAndSync) {
  EXPECT_THAT(Texts({Bin("a", true, 0, 1)}), ElementsAre("0.00 - 1.00 Hz LIV 0-0"));
  EXPECT_THAT(Texts({Bin("a", true, 0, 1), Bin("b", true, 1, 2)}),
              ElementsAre("0.00 - 1.00 Hz LIV 0-0", "1.00 - 2.00 Hz LIV 1-1"))
      << "the second bin joins the first only where one range serves both";
  EXPECT_THAT(Texts({Bin("a", false, 0, 1), Bin("b", false, 1, 2), Bin("b", false, 2, 3),
                     Bin("b", true, 3, 4), Bin("a", true, 4, 5)}),
              ElementsAre("0.00 - 1.00 Hz LEV 0-0", "1.00 - 3.00 Hz LEV 1-2",
                          "3.00 - 4.00 Hz LIV 3-3", "4.00 - 5.00 Hz LIV 4-4"));
  EXPECT_THAT(Texts({Bin("a", false, 120, 500.0)}), ElementsAre("120.00 - 500.00 Hz LEV 0-0"));
  EXPECT_THAT(Texts({Bin("a", false, 120, 500.001)}), ElementsAre("120.00+ Hz LEV 0-0"));
}

}  // namespace
}  // namespace frame_rates
