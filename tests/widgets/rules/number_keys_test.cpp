// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/number_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using GUI::AcceptsNumberKey;
using GUI::NumberEntryState;

TEST(NumberKeys, EachConversionHasItsCharacters) {
  struct Case {
    char conversion;
    const char* allowed;
  };
  const Case cases[] = {{'d', "0123456789-"},   {'i', "0123456789-"}, {'f', "0123456789.-"},
                        {'e', "0123456789.-+"}, {'o', "01234567"},    {'u', "0123456789"},
                        {'?', "0123456789"}};
  for (const Case& c : cases) {
    std::string taken;
    for (char16_t key = 32; key < 127; ++key) {
      if (AcceptsNumberKey(c.conversion, key, {})) taken += static_cast<char>(key);
    }
    std::string expected = c.allowed;
    std::ranges::sort(expected);
    EXPECT_EQ(taken, expected) << c.conversion;
  }
  for (const char conversion : {'x', 'X'}) {
    EXPECT_TRUE(AcceptsNumberKey(conversion, u'z', {}));
    EXPECT_TRUE(AcceptsNumberKey(conversion, u'Ж', {}));
  }
}

TEST(NumberKeys, PointAndMinusStandOnceAndMinusInFront) {
  struct Case {
    char16_t key;
    NumberEntryState entry;
    bool taken;
  };
  const Case cases[] = {
      {u'-', {u"", 0, false}, true},     {u'-', {u"15", 0, false}, true},
      {u'-', {u"15", 1, false}, false},  {u'-', {u"15", 0, true}, false},
      {u'-', {u"-15", 0, false}, false}, {u'.', {u"15", 1, false}, true},
      {u'.', {u"1.5", 3, false}, false}, {u'.', {u"1.5", 0, true}, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(AcceptsNumberKey('f', c.key, c.entry), c.taken)
        << static_cast<char>(c.key) << " at " << c.entry.caret << " of " << c.entry.text.size();
  }
  EXPECT_FALSE(AcceptsNumberKey('x', u'-', {u"a-", 0, false}));
}
