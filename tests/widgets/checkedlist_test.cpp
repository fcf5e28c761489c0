// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/checkedlist.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QtTest>

namespace {

class CheckedList : public testing::Test {
 protected:
  CheckedList() {
    for (int item = 0; item < 3; ++item) list.SetItemText(item, QString::number(item * 60) + " Hz");
    list.EnableItem(1, false);
    list.resize(300, 200);
    list.show();
    list.activateWindow();
    list.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
  }

  void Space(int item, int column) {
    // A person cannot go to a disabled item.
    list.selectionModel()->setCurrentIndex(list.model()->index(item, column),
                                           QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_Space);
  }

  [[nodiscard]] QString Checks() const {
    QString checks;
    for (int item = 0; item < list.ItemCount(); ++item) {
      const bool boxed = list.topLevelItem(item)->checkState(0) == Qt::Checked;
      EXPECT_EQ(list.ItemText(item, 1), boxed ? "Yes" : "No");
      checks += boxed ? 'Y' : 'n';
    }
    return checks;
  }

  checkedlist list;
};

TEST_F(CheckedList, ColumnOneFollowsTheBox) {
  QSignalSpy changed(&list, &checkedlist::checkChanged);
  EXPECT_EQ(Checks(), "nnn");
  Space(0, 0);
  Space(2, 1);
  EXPECT_EQ(Checks(), "YnY") << "whatever column is current";
  Space(0, 0);
  EXPECT_EQ(Checks(), "nnY");
  ASSERT_EQ(changed.count(), 3);
  EXPECT_EQ(changed.value(1), QVariantList({2}));
}

TEST_F(CheckedList, ADisabledItemCannotBeToggled) {
  QSignalSpy changed(&list, &checkedlist::checkChanged);
  list.SetItemText(1, 1, "Yes");
  EXPECT_EQ(Checks(), "nYn");
  Space(1, 0);
  const QRect place = list.visualItemRect(list.topLevelItem(1));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {place.left() + 10, place.center().y()});
  EXPECT_EQ(Checks(), "nYn");
  EXPECT_FALSE(list.ItemEnabled(1));
  list.EnableItem(1, true);
  Space(1, 0);
  EXPECT_EQ(Checks(), "nnn");
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(CheckedList, TheProgramsTextsCheckInSilence) {
  QSignalSpy changed(&list, &checkedlist::checkChanged);
  list.SetItemText(4, 1, "Yes");
  list.SetItemText(0, "50 Hz");
  EXPECT_EQ(list.ItemCount(), 5);
  EXPECT_EQ(Checks(), "nnnnY");
  list.SetItemText(4, 1, "No");
  EXPECT_EQ(Checks(), "nnnnn");
  EXPECT_EQ(list.ItemText(0, 0), "50 Hz");
  EXPECT_EQ(list.ItemText(9, 0), "");
  EXPECT_EQ(changed.count(), 0);
}

}  // namespace
