// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/text/code_page.h"

#include <gtest/gtest.h>

namespace {

TEST(CodePage, Utf8IsTakenAndAllElseIsWindows1252) {
  const struct {
    const char* what;
    std::string bytes;
    std::string expected;
  } cases[] = {
      {"nothing", "", ""},
      {"ASCII with a zero byte", std::string("a\0b", 3), std::string("a\0b", 3)},
      {"two, three and four bytes", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x92\xA1",
       "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x92\xA1"},
      {"the last code point", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},
      {"Latin-1", "\xE4\xFF\xA0", "\xC3\xA4\xC3\xBF\xC2\xA0"},
      {"the page's own signs", "\x80\x8A\x9F", "\xE2\x82\xAC\xC5\xA0\xC5\xB8"},
      {"an undefined byte", "\x81", "\xC2\x81"},
      {"overlong", "\xC0\xAF", "\xC3\x80\xC2\xAF"},
      {"a surrogate", "\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},
      {"past the last code point", "\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC"},
      {"cut", "a\xE2\x82", "a\xC3\xA2\xE2\x80\x9A"},
      {"one bad byte turns all of it", "\xC3\xA4\xFF", "\xC3\x83\xC2\xA4\xC3\xBF"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(platform::ToUtf8(each.bytes), each.expected) << each.what;
    EXPECT_EQ(platform::IsUtf8(each.bytes), each.bytes == each.expected) << each.what;
  }
  EXPECT_EQ(platform::Windows1252ToUtf8("\xC3\xA4"), "\xC3\x83\xC2\xA4");
}

}  // namespace
