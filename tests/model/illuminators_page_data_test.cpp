// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "model/illuminators_page_data.h"

#include <gtest/gtest.h>

#include "archive/support/round_trip.h"

namespace {

using archive_test::Read;
using archive_test::ReadContent;
using archive_test::Written;

const char* const kItem =
    "<item><Row>3</Row><Type>4</Type><EnableDelay>1.25</EnableDelay><DisableDelay>2</DisableDelay>"
    "<FallMargin>2000</FallMargin><SlotMarker>65535</SlotMarker><BaseColor>6</BaseColor>"
    "<IsLed>1</IsLed><WheelNumber>-1</WheelNumber></item>";

std::string Items(int count, const char* item) {
  std::string text = "<count>" + std::to_string(count) + "</count>";
  for (int i = 0; i < std::max(count, 10); ++i) text += item;
  return text;
}

TEST(IlluminatorsPageData, ReadsAndWritesItsElements) {
  std::string text = "<Inputs><IllumChars><count>8</count>";
  for (int i = 0; i < 8; ++i) text += kItem;
  text += "</IllumChars><IllumAllowed><count>8</count>";
  for (int i = 0; i < 8; ++i) text += i == 7 ? "<item>1</item>" : "<item>0</item>";
  text += "</IllumAllowed></Inputs>";
  IlluminatorsPageData data;
  Read(text, data);
  const IllumCharacteristics& last = data.characteristics[7];
  EXPECT_EQ(last.Row, 3);
  EXPECT_EQ(last.Type, IllumCharacteristics::kCyan);
  EXPECT_EQ(last.EnableDelay, 1.25);
  EXPECT_EQ(last.DisableDelay, 2.0);
  EXPECT_EQ(last.FallMargin, 2000.0);
  EXPECT_EQ(last.SlotMarker, IllumCharacteristics::kFreeSlot);
  EXPECT_EQ(last.BaseColor, IllumCharacteristics::kWhite);
  EXPECT_EQ(last.IsLed, 1);
  EXPECT_EQ(last.WheelNumber, IllumCharacteristics::kNoWheel);
  EXPECT_TRUE(data.allowed[7]);
  EXPECT_FALSE(data.allowed[6]);
  EXPECT_EQ(Written(data, "Inputs"), text);
}

TEST(IlluminatorsPageData, TakesACountOutOfBoundsAsEight) {
  const auto read = [](int count) {
    return ReadContent<IlluminatorsPageData>("<IllumChars>" + Items(count, kItem) +
                                             "</IllumChars><IllumAllowed>" +
                                             Items(count, "<item>1</item>") + "</IllumAllowed>");
  };
  for (const int count : {-1, 8, 9, 30000}) {
    const IlluminatorsPageData data = read(count);
    EXPECT_EQ(data.characteristics[7].Row, 3) << count;
    EXPECT_TRUE(data.allowed[7]) << count;
  }
  const IlluminatorsPageData three = read(3);
  EXPECT_EQ(three.characteristics[2].Row, 3);
  EXPECT_EQ(three.characteristics[3], IlluminatorsPageData().characteristics[3]);
  EXPECT_FALSE(three.allowed[3]);
}

}  // namespace
