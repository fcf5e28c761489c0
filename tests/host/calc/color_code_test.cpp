// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/color_code.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(ColorCode, NamesAndLettersLeadBackToTheirCode) {
  std::set<char> letters;
  for (int code = 0; code < color_code::kCount; ++code) {
    EXPECT_EQ(color_code::FromName(color_code::Name(code)), code);
    if (const char letter = color_code::Letter(code); letter != 0) {
      EXPECT_EQ(color_code::FromLetter(letter), code);
      letters.insert(letter);
    }
    // Spokes and black are what a wheel can be said to have, not what it can be built of.
    EXPECT_EQ(color_code::IsCounted(code), color_code::Letter(code) != 0) << code;
  }
  EXPECT_EQ(letters, (std::set<char>{'R', 'G', 'B', 'W', 'C', 'M', 'Y',  //
                                     'r', 'g', 'b', 'w', 'c', 'm', 'y'}));
}

TEST(ColorCode, WhatIsNoColorIsNone) {
  for (const char* name : {"", "None", "red", "Red ", "Magenta Spokes"}) {
    EXPECT_EQ(color_code::FromName(name), color_code::kNone) << name;
  }
  for (const int code : {-1, 19, 1000}) {
    EXPECT_EQ(color_code::Name(code), "") << code;
    EXPECT_FALSE(color_code::IsCounted(code)) << code;
  }
  EXPECT_EQ(color_code::FromLetter(0), color_code::kNone);
  EXPECT_EQ(color_code::FromLetter('k'), color_code::kNone);
}

}  // namespace
