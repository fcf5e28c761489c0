// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "framework/qstring_text.h"

#include <gtest/gtest.h>

#include <vector>

#include "archive/support/round_trip.h"
#include "archive/xml_archive_exception.h"

namespace {

using archive_test::Read;
using archive_test::Written;

TEST(QStringText, IsWrittenAsText) {
  std::vector<QString> texts{QStringLiteral("T\u00FCbingen <&>"), QString()};
  const std::string text = Written(texts, "T");
  EXPECT_EQ(text,
            "<T><count>2</count><item>T\xC3\xBC"
            "bingen &lt;&amp;&gt;</item><item/></T>");
  std::vector<QString> read;
  Read(text, read, "T");
  EXPECT_EQ(read, texts);
  texts[0] = QChar(1);
  EXPECT_THROW(Written(texts, "T"), zel::archive::xml_archive_exception);
}

}  // namespace
