// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/formatted_edit.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QtTest>

using GUI::CFormattedEdit;

namespace {

QString Typed(char conversion, const char* keys) {
  CFormattedEdit edit(conversion);
  QTest::keyClicks(&edit, keys);
  return edit.text();
}

}  // namespace

TEST(FormattedEdit, KeysThatCannotBelongToTheNumberAreDropped) {
  EXPECT_EQ(Typed('f', "-1.5"), "-1.5");
  EXPECT_EQ(Typed('f', "1.5.7-8x e+"), "1.578");
  EXPECT_EQ(Typed('e', "1.5e+3"), "1.5+3") << "the letter itself cannot be typed";
  EXPECT_EQ(Typed('d', "-4.2"), "-42");
  EXPECT_EQ(Typed('o', "0189"), "01");
  EXPECT_EQ(Typed('X', "0xFF z"), "0xFF z");
  EXPECT_EQ(CFormattedEdit().Conversion(), 'f');
}

TEST(FormattedEdit, MinusStandsAtTheVeryStart) {
  CFormattedEdit edit;
  edit.setText("15");
  QTest::keyClick(&edit, Qt::Key_Minus);
  EXPECT_EQ(edit.text(), "15");
  QTest::keyClick(&edit, Qt::Key_Home);
  QTest::keyClick(&edit, Qt::Key_Minus);
  EXPECT_EQ(edit.text(), "-15");
  edit.setText("15");
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_Minus);
  EXPECT_EQ(edit.text(), "15") << "not over a selection";
  QTest::keyClick(&edit, Qt::Key_Backspace);
  QTest::keyClick(&edit, Qt::Key_Minus);
  EXPECT_EQ(edit.text(), "-");
}

TEST(FormattedEdit, ControlKeysEdit) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  CFormattedEdit edit('d');
  edit.setText("42");
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard.text(), "42");
  QTest::keyClick(&edit, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), "");
  clipboard.setText("4.2 mm");
  QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), "4.2 mm") << "pasted text is taken as it is";
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), "");
  edit.setText("7");
  edit.setReadOnly(true);
  for (const Qt::Key key : {Qt::Key_V, Qt::Key_X, Qt::Key_Z}) {
    edit.selectAll();
    QTest::keyClick(&edit, key, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), "7") << key;
  }
}

TEST(FormattedEdit, ComposedTextIsJudgedToo) {
  CFormattedEdit edit('d');
  for (const char* text : {"12", "３", "x"}) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QCoreApplication::sendEvent(&edit, &event);
  }
  EXPECT_EQ(edit.text(), "12");
}
