// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/copy_names.h"

#include <gtest/gtest.h>

#include <vector>

using GUI::CopyNames;

TEST(CopyNames, TheSmallestFreeNumberIsTaken) {
  struct Case {
    std::vector<std::string> column;
    std::string text;
    std::string name;
  };
  const Case cases[] = {
      {{"Red"}, "Red", "Copy of Red"},
      {{"Red", "Copy of Red"}, "Red", "Copy (2) of Red"},
      {{"Red", "Copy (2) of Red"}, "Red", "Copy of Red"},
      {{"Red", "Copy of Red", "Copy (3) of Red"}, "Red", "Copy (2) of Red"},
      {{"Copy of Red"}, "Copy of Red", "Copy of Copy of Red"},
      {{"Copy of Red", "Copy of Copy of Red"}, "Copy of Red", "Copy (2) of Copy of Red"},
      {{"Red", "Copy of Green"}, "Red", "Copy of Red"},
      {{"Red", "Copy of Red", "Copy (0) of Red", "Copy (1) of Red"}, "Red", "Copy (2) of Red"},
      {{"Red", "Copy of Red", "Copy (02) of Red"}, "Red", "Copy (3) of Red"},
      {{"Red", "Copy of Red", "Copy (2)of Red", "Copy (x) of Red", "Copy () of Red",
        "Copy (-2) of Red", "copy (2) of Red", "Copy (2) of red"},
       "Red",
       "Copy (2) of Red"},
      {{"Red", "Copy (99999999999999999999999) of Red"}, "Red", "Copy of Red"},
      {{"", "Copy of "}, "", "Copy (2) of "},
  };
  for (const Case& c : cases) {
    CopyNames names;
    for (const std::string& text : c.column) names.Add(text);
    EXPECT_EQ(names.NameFor(c.text, 100), c.name) << c.column.back();
  }
}

TEST(CopyNames, NamesGivenOutCountAsUsed) {
  CopyNames names;
  names.Add("Copy (3) of Red");
  EXPECT_EQ(names.NameFor("Red", 10), "Copy of Red");
  EXPECT_EQ(names.NameFor("Red", 10), "Copy (2) of Red");
  EXPECT_EQ(names.NameFor("Red", 10), "Copy (4) of Red");
  EXPECT_EQ(names.NameFor("Red", 4), "Copy of Red") << "all four numbers are used";
}
