// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/tab_sheet.h"

#include <gtest/gtest.h>

#include <QTabBar>
#include <QtTest>

namespace {

class Sheet : public testing::Test {
 protected:
  Sheet() {
    for (const char* text : {"Pulses", "Philips", "More"}) sheet.addTab(new QWidget, text);
  }
  GUI::TabSheet sheet;
};

TEST_F(Sheet, DisablingTheCurrentTabMovesToTheNextEnabledOne) {
  EXPECT_TRUE(sheet.SetTabDisabled(1, true));
  EXPECT_EQ(sheet.currentIndex(), 0);
  EXPECT_FALSE(sheet.SetTabDisabled(1, true)) << "it was disabled already";
  EXPECT_TRUE(sheet.SetTabDisabled(0, true));
  EXPECT_EQ(sheet.currentIndex(), 2) << "past the disabled one";
  EXPECT_FALSE(sheet.SetTabDisabled(2, true)) << "there is none other";
  EXPECT_FALSE(sheet.IsTabDisabled(2));
  EXPECT_TRUE(sheet.SetTabDisabled(0, false));
  EXPECT_FALSE(sheet.SetTabDisabled(0, false));
  EXPECT_EQ(sheet.currentIndex(), 2);
  EXPECT_TRUE(sheet.SetTabDisabled(2, true));
  EXPECT_EQ(sheet.currentIndex(), 0) << "round to the first";
  EXPECT_FALSE(sheet.SetTabDisabled(3, true));
  EXPECT_FALSE(sheet.SetTabDisabled(-1, true));
}

TEST_F(Sheet, ADisabledTabCannotBeChosen) {
  sheet.resize(400, 300);
  sheet.show();
  sheet.SetTabDisabled(1, true);
  QTest::mouseClick(sheet.tabBar(), Qt::LeftButton, {}, sheet.tabBar()->tabRect(1).center());
  EXPECT_EQ(sheet.currentIndex(), 0);
  QTest::keyClick(sheet.tabBar(), Qt::Key_Right);
  EXPECT_EQ(sheet.currentIndex(), 2);
}

}  // namespace
