// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "grid_fixture.h"
#include "widgets/data_grid_delegate.h"

using GUI::CDynamicDataGrid;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class GridKeys : public GridFixture {
 protected:
  void SetUp() override {
    Fill(4);
    Show();
  }

  static bool WaitForList() {
    return QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; });
  }
  bool WaitForNoList() {
    return QTest::qWaitFor([this] { return !grid.indexWidget(grid.currentIndex()); });
  }
  static QString Clipboard() { return QGuiApplication::clipboard()->text(); }
  static void SetClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }
  [[nodiscard]] QLineEdit* Editor() const {
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
  }

  void SelectCells(int top, int left, int bottom, int right) {
    const QAbstractItemModel& model = *grid.model();
    GoTo(top, left);
    grid.selectionModel()->select({model.index(top, left), model.index(bottom, right)},
                                  QItemSelectionModel::ClearAndSelect);
  }
};

TEST_F(GridKeys, ArrowsAndTabWalkTheCells) {
  GoTo(1, kName);
  Press(Qt::Key_Down);
  EXPECT_THAT(Current(), Pair(2, kName));
  Press(Qt::Key_Right);
  EXPECT_THAT(Current(), Pair(2, kDegrees));
  Press(Qt::Key_Tab);
  EXPECT_THAT(Current(), Pair(2, kCount));
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_THAT(Current(), Pair(2, kDegrees));
  Press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_THAT(grid.SelectedRowBlocks(), ElementsAre(Pair(1, 2)));
}

TEST_F(GridKeys, TypingReplacesAndEnterMouseOrARowOperationTakesIt) {
  GoTo(1, kDegrees);
  Type("20.5");
  ASSERT_NE(Editor(), nullptr);
  Press(Qt::Key_Return);
  EXPECT_EQ(grid.CellText(1, kDegrees), "20.50");
  EXPECT_THAT(Current(), Pair(2, kDegrees));
  EXPECT_TRUE(grid.hasFocus());
  GoTo(0, kName);
  Type("left");
  Click(Middle(3, kName));
  EXPECT_EQ(grid.CellText(0, kName), "left");
  GoTo(0, kName);
  Press(Qt::Key_Backspace);
  ASSERT_NE(Editor(), nullptr);
  EXPECT_EQ(Editor()->text(), "");
  Type("open");
  grid.SelectRows(0, 0);
  grid.RunRowOperation(GUI::RowOperation::kMoveDown);
  EXPECT_EQ(Names(), "b open c d");
  EXPECT_THAT(edits, ElementsAre(Pair(1, kDegrees), Pair(0, kName), Pair(0, kName)));
  GoTo(0, kName);
  Type("zzz");
  Press(Qt::Key_Escape);
  EXPECT_EQ(grid.CellText(0, kName), "b");
  EXPECT_THAT(Current(), Pair(0, kName));
  Type("taken");
  grid.EndEditing();
  EXPECT_EQ(grid.CellText(0, kName), "taken");
  EXPECT_EQ(edits.size(), 4u);
}

TEST_F(GridKeys, F2AndEnterOpenAndTabTakes) {
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return}) {
    GoTo(0, kName);
    Press(key);
    ASSERT_NE(Editor(), nullptr) << key;
    EXPECT_EQ(Editor()->selectedText(), grid.CellText(0, kName));
    Press(Qt::Key_End);
    Type("x");
    Press(Qt::Key_Tab);
    EXPECT_THAT(Current(), Pair(0, kDegrees));
  }
  EXPECT_EQ(grid.CellText(0, kName), "axx");
}

TEST_F(GridKeys, ARefusedTextIsSaidAndThePersonStays) {
  GoTo(1, kDegrees);
  Type("400");
  Press(Qt::Key_Return);
  EXPECT_THAT(messages, ElementsAre("Please enter a value between 0.00 and 360.00."));
  EXPECT_EQ(grid.CellText(1, kDegrees), "10.00");
  EXPECT_THAT(Current(), Pair(1, kDegrees));
  EXPECT_THAT(edits, IsEmpty());
  Type("40");
  Press(Qt::Key_Return);
  EXPECT_THAT(Current(), Pair(2, kDegrees));
}

TEST_F(GridKeys, SpaceTogglesAndPresses) {
  QSignalSpy toggled(&grid, &CDynamicDataGrid::checkBoxToggled);
  QSignalSpy pushed(&grid, &CDynamicDataGrid::pushButtonClicked);
  GoTo(2, kBox);
  Press(Qt::Key_Space);
  EXPECT_TRUE(grid.CellChecked(2, kBox));
  Press(Qt::Key_Space);
  EXPECT_FALSE(grid.CellChecked(2, kBox));
  EXPECT_EQ(toggled.count(), 2);
  GoTo(2, kButton);
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  EXPECT_EQ(pushed.count(), 2);
}

TEST_F(GridKeys, TheMouseTogglesTheBoxAndNotItsCell) {
  QSignalSpy clicked(&grid, &CDynamicDataGrid::cellClicked);
  Click(Middle(1, kBox));
  EXPECT_TRUE(grid.CellChecked(1, kBox));
  Click(Middle(1, kBox) + QPoint(25, 0));
  EXPECT_TRUE(grid.CellChecked(1, kBox));
  EXPECT_EQ(clicked.count(), 2);
  QSignalSpy pushed(&grid, &CDynamicDataGrid::pushButtonClicked);
  Click(Middle(1, kButton));
  EXPECT_EQ(pushed.value(0), QVariantList({1, int{kButton}}));
  QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, Middle(0, kButton));
  QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, Middle(3, kButton));
  EXPECT_EQ(pushed.count(), 1) << "released over another button";
}

TEST_F(GridKeys, ADropDownIsChosenByKeys) {
  GoTo(0, kColor);
  Press(Qt::Key_F4);
  ASSERT_TRUE(WaitForList());
  auto* list = qobject_cast<QComboBox*>(grid.indexWidget(grid.currentIndex()));
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->currentText(), "Red");
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  ASSERT_TRUE(WaitForNoList());
  EXPECT_EQ(grid.CellText(0, kColor), "Green");
  EXPECT_THAT(edits, ElementsAre(Pair(0, kColor)));
  EXPECT_TRUE(grid.hasFocus());
}

TEST_F(GridKeys, ADropDownOpensAtItsArrowAndEscapes) {
  const QRect cell = grid.visualRect(grid.model()->index(2, kColor));
  Click(GUI::DataGridDelegate::ArrowRect(cell).center());
  ASSERT_TRUE(WaitForList());
  Press(Qt::Key_Down);
  Press(Qt::Key_Escape);
  ASSERT_TRUE(WaitForNoList());
  EXPECT_EQ(grid.CellText(2, kColor), "Red");
  EXPECT_THAT(edits, IsEmpty());
}

TEST_F(GridKeys, ATypedLetterSearchesTheListAndEscapeForgetsIt) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    GoTo(1, kColor);
    Type("b");
    ASSERT_TRUE(WaitForList());
    Press(key);
    ASSERT_TRUE(WaitForNoList());
    EXPECT_EQ(grid.CellText(1, kColor), key == Qt::Key_Escape ? "Red" : "Blue");
  }
  EXPECT_EQ(edits.size(), 1u);
}

TEST_F(GridKeys, RowOperationsHaveKeys) {
  grid.SetNewRowValues(Values("new"));
  GoTo(1, kName);
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Names(), "b a c d");
  Press(Qt::Key_Down, Qt::AltModifier);
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Names(), "a c b d");
  Press(Qt::Key_End, Qt::AltModifier);
  EXPECT_EQ(Names(), "a c d b");
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Names(), "b a c d");
  Press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Names(), "b a c d Copy of b");
  Press(Qt::Key_Delete);
  EXPECT_EQ(Names(), "b a c d");
  Press(Qt::Key_Insert);
  EXPECT_EQ(Names(), "b a c d new");
}

TEST_F(GridKeys, KeysOfAnOpenCellAreItsOwn) {
  GoTo(0, kName);
  Type("ab");
  Press(Qt::Key_Home);
  Press(Qt::Key_Delete);
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(grid.RowCount(), 4);
  Press(Qt::Key_Return);
  EXPECT_EQ(Names(), "b b c d");
}

TEST_F(GridKeys, BlocksAreCopiedAndPastedAsText) {
  grid.SetCellText(0, kName, "two\nlines");
  SelectCells(0, kName, 1, kBox);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "\"two\nlines\"\t10.00\t7\tfalse\nb\t10.00\t7\tfalse\n");

  QSignalSpy toggled(&grid, &CDynamicDataGrid::checkBoxToggled);
  SetClipboard("x\t1\t2.9\tTRUE\r\ny\t2\t3\tfalse\r\n");
  GoTo(2, kName);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(grid.CellText(2, kName), "x");
  EXPECT_EQ(grid.CellText(2, kDegrees), "1.00");
  EXPECT_EQ(grid.CellText(2, kCount), "2");
  EXPECT_TRUE(grid.CellChecked(2, kBox));
  EXPECT_EQ(grid.CellText(3, kName), "y");
  EXPECT_EQ(toggled.count(), 1);
  EXPECT_THAT(edits, ElementsAre(Pair(2, kName))) << "one edit, whatever its size";
  EXPECT_THAT(messages, IsEmpty());
}

TEST_F(GridKeys, OneTextFillsTheSelection) {
  SetClipboard("42");
  SelectCells(1, kDegrees, 3, kDegrees);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(grid.CellText(0, kDegrees), "10.00");
  for (int row = 1; row < 4; ++row) EXPECT_EQ(grid.CellText(row, kDegrees), "42.00");
}

TEST_F(GridKeys, ABadBlockSaysWhichCellAndChangesNothing) {
  const std::string bounds = "Please enter a value between 0.00 and 360.00.";
  const std::string room = "The copied block is larger than the room for it in the table.";
  const std::tuple<const char*, Column, std::string> cases[] = {
      {"x\t5\ny\t361\n", kName, "Row 2, column \"Degrees\": " + bounds},
      {"Green\tx\nPink\ty\n", kColor,
       "Row 2, column \"Color\": \"Pink\" is not one of the choices."},
      {"true\tEdit...\nyes\tEdit...\n", kBox, "Row 2, column \"Via\": Please enter true or false."},
      {"true\tOther\n", kBox, "Row 1, column \"Operation\": This cell cannot be changed."},
      {"1\n2\n3\n4\n", kDegrees, room},
      {"1\t2\t3\t4\t5\n", kDegrees, room}};
  for (const auto& [text, at, message] : cases) {
    messages.clear();
    GoTo(1, at);
    SetClipboard(text);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(messages, ElementsAre(testing::StartsWith(message))) << text;
    EXPECT_EQ(Names(), "a b c d");
    EXPECT_EQ(grid.CellText(1, kDegrees), "10.00");
    EXPECT_EQ(grid.CellText(1, kColor), "Red");
    EXPECT_FALSE(grid.CellChecked(1, kBox));
  }
  EXPECT_THAT(edits, IsEmpty());
}

TEST_F(GridKeys, WholeRowsPasteOntoTheirLike) {
  grid.SetCellText(0, kName, "source");
  grid.SelectRows(0, 0);
  Press(Qt::Key_C, Qt::ControlModifier);
  grid.SelectRows(3, 3);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Names(), "source b c source");
  EXPECT_THAT(messages, IsEmpty());
}

TEST_F(GridKeys, AReadOnlyGridOnlyCopies) {
  grid.SetReadOnly(true);
  GoTo(0, kName);
  Type("x");
  Press(Qt::Key_F2);
  EXPECT_EQ(Editor(), nullptr);
  Press(Qt::Key_Delete);
  SetClipboard("pasted");
  Press(Qt::Key_V, Qt::ControlModifier);
  Click(Middle(0, kBox));
  EXPECT_EQ(Names(), "a b c d");
  EXPECT_FALSE(grid.CellChecked(0, kBox));
  GoTo(0, kName);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "a\n");
}

TEST(GridFocus, TabLeavesTheTableAtItsEnds) {
  QWidget window;
  auto* layout = new QVBoxLayout(&window);
  auto* before = new QPushButton("before");
  const GUI::GridColumn columns[] = {{"A"}, {"B"}};
  auto* grid = new CDynamicDataGrid(columns, 2);
  auto* after = new QPushButton("after");
  for (QWidget* widget : std::initializer_list<QWidget*>{before, grid, after}) {
    layout->addWidget(widget);
  }
  const auto tab = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  before->setFocus();
  tab(Qt::Key_Tab);
  EXPECT_TRUE(grid->hasFocus());
  tab(Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus()) << "an empty table does not hold the focus";
  grid->InsertRow({"1", "2"});
  grid->setFocus();
  grid->setCurrentIndex(grid->model()->index(0, 0));
  tab(Qt::Key_Tab);
  EXPECT_TRUE(grid->hasFocus());
  tab(Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus());
  grid->setFocus();
  grid->setCurrentIndex(grid->model()->index(0, 0));
  tab(Qt::Key_Backtab);
  EXPECT_TRUE(before->hasFocus());
}

}  // namespace
