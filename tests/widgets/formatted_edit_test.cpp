// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/formatted_edit.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QtTest>
#include <string>
#include <utility>

using GUI::CFormattedEdit;

namespace {

QString Typed(char conversion, const char* keys) {
  CFormattedEdit edit(conversion);
  QTest::keyClicks(&edit, keys);
  return edit.text();
}

}  // namespace

TEST(FormattedEdit, KeysThatCannotBelongToTheNumberAreDropped) {
  std::string all = "-.";  // a minus must come first
  for (char key = 32; key < 127; ++key) all += key;
  const std::pair<char, const char*> taken[] = {
      {'d', "-0123456789"}, {'i', "-0123456789"}, {'f', "-.0123456789"}, {'e', "-.+0123456789"},
      {'o', "01234567"},    {'u', "0123456789"},  {'?', "0123456789"}};
  for (const auto& [conversion, text] : taken) {
    EXPECT_EQ(Typed(conversion, all.c_str()), text) << conversion;
  }
  EXPECT_EQ(Typed('f', "1.5.7-8x e+"), "1.578");
  EXPECT_EQ(Typed('X', "0xFF z-"), "0xFF z");
  EXPECT_EQ(CFormattedEdit().Conversion(), 'f');
}

TEST(FormattedEdit, MinusStandsOnceAtTheVeryStart) {
  CFormattedEdit edit;
  edit.setText("15");
  QTest::keyClick(&edit, Qt::Key_Minus);
  EXPECT_EQ(edit.text(), "15");
  for (int times = 0; times < 2; ++times) {
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClick(&edit, Qt::Key_Minus);
    EXPECT_EQ(edit.text(), "-15");
  }
  edit.setText("1.5");
  edit.setSelection(3, -3);
  QTest::keyClicks(&edit, "-.");
  EXPECT_EQ(edit.text(), "1.5") << "not over a selection";
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
