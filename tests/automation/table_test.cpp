// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTableWidget>
#include <QTreeWidget>

#include "automation/automation_error.h"
#include "automation/form.h"
#include "automation/support/grid.h"
#include "automation/support/test_form.h"
#include "support/fault_of.h"

namespace {

using automation::AutomationError;
using automation::Table;
using Blocks = TableAccess::Blocks;

class TableTest : public testing::Test {
 protected:
  TableTest() { window_.show(); }

  test::TestForm window_;
  automation::Form form_{window_};
  Table parts_ = form_.GetTable("Parts");
  Table grid_ = form_.GetTable("Grid");
};

TEST_F(TableTest, ReadsAnItemViewAsItIsSeen) {
  EXPECT_EQ(parts_.Rows(), 3);
  EXPECT_EQ(parts_.Columns(), 3) << "a hidden column does not count";
  EXPECT_EQ(parts_.Headers(), (QStringList{"Part", "Use", "Made of"}));
  EXPECT_EQ(parts_.Cell(1, 0), "part 1");
  EXPECT_EQ(parts_.Background(1, 0), "#010203");
  EXPECT_EQ(parts_.ToolTip(1, 0), "the second");
  EXPECT_TRUE(parts_.Editable(0, 0));
  EXPECT_FALSE(parts_.Editable(0, 1));
  EXPECT_TRUE(parts_.RowEnabled(1));
  EXPECT_FALSE(parts_.RowEnabled(2));
  window_.parts->setRowHidden(0, true);
  EXPECT_EQ(parts_.Rows(), 2);
  EXPECT_EQ(parts_.Cell(0, 0), "part 1");
}

TEST_F(TableTest, EditsAnItemViewInPlace) {
  parts_.SetCell(0, 0, "screw");
  parts_.SetCell(1, 0, "");
  EXPECT_EQ(window_.parts->item(0, 0)->text(), "screw");
  EXPECT_EQ(window_.parts->item(1, 0)->text(), "");
  EXPECT_EQ(parts_.Choices(0, 2), (QStringList{"steel", "glass", "brass"}));
  EXPECT_TRUE(parts_.Choices(0, 0).isEmpty());
  parts_.SetCell(0, 2, "brass");
  EXPECT_EQ(window_.parts->item(0, 2)->text(), "brass");
  parts_.Toggle(1, 1);
  EXPECT_TRUE(parts_.Checked(1, 1));
  EXPECT_EQ(window_.parts->item(1, 1)->checkState(), Qt::Checked);
  parts_.Toggle(1, 1);
  EXPECT_FALSE(parts_.Checked(1, 1));
}

TEST_F(TableTest, ClicksAndSelectsRowsOfAnItemView) {
  int clickedRow = -1;
  QObject::connect(window_.parts, &QTableWidget::cellClicked, [&](int row) { clickedRow = row; });
  parts_.ClickCell(1, 0);
  EXPECT_EQ(clickedRow, 1);
  parts_.Select({{0, 1}});
  EXPECT_EQ(parts_.Selected(), (Blocks{{0, 1}}));
  window_.parts->setRowCount(5);
  parts_.Select({{0, 0}, {3, 4}});
  EXPECT_EQ(parts_.Selected(), (Blocks{{0, 0}, {3, 4}}));
  parts_.Select({});
  EXPECT_TRUE(parts_.Selected().empty());
  window_.parts->setSelectionMode(QAbstractItemView::SingleSelection);
  EXPECT_THROW(parts_.Select({{0, 1}}), AutomationError);
}

TEST_F(TableTest, CountsTheUnfoldedRowsOfATree) {
  QTreeWidget tree;
  tree.setColumnCount(2);
  auto* parent = new QTreeWidgetItem(&tree, {"parent", "1"});
  new QTreeWidgetItem(parent, {"child", "2"});
  new QTreeWidgetItem(&tree, {"last", "3"});
  tree.show();
  Table table(tree, "Tree");
  EXPECT_EQ(table.Rows(), 2);
  parent->setExpanded(true);
  ASSERT_EQ(table.Rows(), 3);
  EXPECT_EQ(table.Cell(1, 1), "2");
  EXPECT_EQ(table.Cell(2, 0), "last");
}

TEST_F(TableTest, ATableOfItsOwnAccessTakesTheFocus) {
  form_.GetControl("Width (mm)").Type("9");
  (void)window_.TakeEvents();
  grid_.SetCell(1, 0, "new");
  EXPECT_EQ(grid_.Cell(1, 0), "new");
  EXPECT_EQ(window_.TakeEvents(), QStringList{"left 3.009"});
  grid_.ClickCell(0, 1);
  EXPECT_EQ(window_.grid->clicked, (std::pair{0, 1}));
}

TEST_F(TableTest, RefusesWhatAPersonCannotDo) {
  const std::string row2 = "row 2 of \"Grid\" is disabled";
  const std::pair<void (*)(Table&), std::string> refusals[] = {
      {[](Table& t) { (void)t.Cell(4, 0); }, "\"Grid\" has no row 4; it has 4 rows"},
      {[](Table& t) { (void)t.RowEnabled(-1); }, "\"Grid\" has no row -1; it has 4 rows"},
      {[](Table& t) { t.SetCell(0, 2, ""); }, "\"Grid\" has no column 2; it has 2 columns"},
      {[](Table& t) { t.SetCell(0, 1, "5"); }, "cell (0, 1) of \"Grid\" cannot be edited"},
      {[](Table& t) { t.SetCell(2, 0, "5"); }, row2},
      {[](Table& t) { t.ClickCell(2, 0); }, row2},
      {[](Table& t) { t.Toggle(2, 0); }, row2},
      {[](Table& t) {
         t.Select(Blocks{{0, 0}, {3, 4}});
       },
       "\"Grid\" has no row 4; it has 4 rows"},
      {[](Table& t) {
         t.Select(Blocks{{3, 1}});
       },
       "the rows 3 to 1 of \"Grid\" are no block"}};
  const test::Grid* grid = window_.grid;
  for (const auto& [act, message] : refusals)
    EXPECT_EQ(test::FaultOf<AutomationError>([&, act = act] { act(grid_); }), message);
  EXPECT_EQ(grid->keys, (QStringList{"k0", "k1", "k2", "k3"}));
  EXPECT_TRUE(grid->selection.empty());
  EXPECT_THROW(parts_.Toggle(0, 0), AutomationError) << "no check box there";
  window_.parts->setEnabled(false);
  EXPECT_THROW(parts_.SetCell(0, 0, "x"), AutomationError);
  window_.parts->setEnabled(true);
  window_.parts->hide();
  EXPECT_THROW(parts_.Select({{0, 0}}), AutomationError);
  EXPECT_EQ(parts_.Cell(0, 0), "part 0") << "reading is always possible";
}

}  // namespace
