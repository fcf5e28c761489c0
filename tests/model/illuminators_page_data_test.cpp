// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "model/illuminators_page_data.h"

#include <gtest/gtest.h>

#include "archive/support/round_trip.h"

namespace {

using archive_test::ExpectStored;
using archive_test::ReadContent;

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
  std::string text = "<IllumChars><count>8</count>";
  for (int i = 0; i < 8; ++i) text += kItem;
  text += "</IllumChars><IllumAllowed><count>8</count>";
  for (int i = 0; i < 8; ++i) text += i == 7 ? "<item>1</item>" : "<item>0</item>";
  const auto data = ExpectStored<IlluminatorsPageData>(text + "</IllumAllowed>");
  EXPECT_EQ(data.characteristics[7].EnableDelay, 1.25);
  EXPECT_EQ(data.characteristics[7].SlotMarker, IllumCharacteristics::kFreeSlot);
  EXPECT_TRUE(data.allowed[7]);
  EXPECT_FALSE(data.allowed[6]);
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
