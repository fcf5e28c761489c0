// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/tab_text.h"

#include <gtest/gtest.h>

using GUI::FromTabText;
using GUI::TextRows;
using GUI::ToTabText;

TEST(TabText, ReadsWhatSpreadsheetsWrite) {
  const std::pair<std::u16string_view, TextRows> cases[] = {
      {u"", {}},
      {u"a", {{u"a"}}},
      {u"a\tb\r\nc\td\r\n", {{u"a", u"b"}, {u"c", u"d"}}},
      {u"a\rb\nc", {{u"a"}, {u"b"}, {u"c"}}},
      {u"\t\n", {{u"", u""}}},
      {u"a\n\nb\n", {{u"a"}, {u""}, {u"b"}}},
      {u"\"two\nlines\"\tb\n", {{u"two\nlines", u"b"}}},
      {u"\"a \"\"b\"\"\"", {{u"a \"b\""}}},
      {u"5\" x 3\"\tb", {{u"5\" x 3\"", u"b"}}},
      {u"\"never closed\tb\n", {{u"never closed\tb\n"}}},
  };
  for (const auto& [text, rows] : cases) EXPECT_EQ(FromTabText(text), rows) << rows.size();
}

TEST(TabText, WhatIsWrittenReadsBack) {
  const TextRows rows{{u"plain", u"", u"tab\there"},
                      {u"line\nend", u"\"quoted\"", u"inner \"quote\""},
                      {u"", u"", u"cr\r\nlf"}};
  EXPECT_EQ(FromTabText(ToTabText(rows)), rows);
  EXPECT_EQ(ToTabText({{u"a", u"b"}}), u"a\tb\n");
}
