// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/text_tables.h"

#include <gtest/gtest.h>

#include <QTabWidget>
#include <QTableWidget>

#include "automation/aligned_text.h"
#include "automation/support/test_form.h"

namespace {

TEST(AlignedText, PutsCellsUnderEachOther) {
  EXPECT_EQ(automation::AlignedLines({{"Größe", "Wert"}, {"e\u0301", "9.5"}, {"光源", "10"}, {"x"}},
                                     true),
            (QStringList{"Größe  Wert", "-----  ----", "e\u0301       9.5", "光源     10", "x"}));
  EXPECT_EQ(automation::AlignedLines({{"1", "a"}, {"22", "1"}}, false),
            (QStringList{" 1  a", "22  1"}));
  EXPECT_TRUE(automation::AlignedLines({}, false).isEmpty());
}

TEST(TextTables, PrintWhatAPageShows) {
  test::TestForm form;
  form.parts->item(0, 1)->setCheckState(Qt::Checked);
  const std::string text = automation::TextTables(form);
  EXPECT_EQ(text, R"(Test form
=========
Width (mm)  3.00
Frame Rate    60  Hz [1-120]
Total          7
Mind the gap
Color  Red
Spin   1.0x
[ ] Enable all & more

[x] Mode
  ( ) Fast
  ( ) Slow

Parts
  Part    Use  Made of
  ------  ---  -------
  part 0  [x]  glass
  part 1       glass
  part 2       glass

Grid
  Key  Größe
  ---  -----
  k0       0
  k1      10
  k2      20
  k3      30

General
-------
Width (mm)    of General
Only General  1

Third
-----
Width (mm)  of Third
Only Third  1
)");
  EXPECT_EQ(automation::TextTables(form), text);
  EXPECT_EQ(form.sheet->currentIndex(), 0);
}

}  // namespace
