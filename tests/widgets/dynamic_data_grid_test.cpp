// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/dynamic_data_grid.h"

#include <QAction>
#include <QSignalSpy>
#include <stdexcept>

#include "grid_fixture.h"
#include "host/project/ost_exception.h"

using GUI::CDynamicDataGrid;
using GUI::RowOperation;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class DynamicDataGrid : public GridFixture {};

TEST_F(DynamicDataGrid, WithoutColumnsItIsNotMade) {
  const auto message = testing::Property(
      &OstException::what, testing::StrEq("Error creating a new instance of CDynamicDataGrid."));
  EXPECT_THAT([] { const CDynamicDataGrid none(nullptr, 3); },
              testing::Throws<OstException>(message));
}

TEST_F(DynamicDataGrid, EachKindTakesItsValue) {
  EXPECT_EQ(grid.InsertRow({"Red|Green|Blue|Green", "abc", "3", "3.7", "true", "Edit..."}), 0);
  EXPECT_EQ(grid.CellText(0, kColor), "Green");
  EXPECT_EQ(grid.CellChoices(0, kColor), QStringList({"Red", "Green", "Blue"}));
  EXPECT_EQ(grid.CellText(0, kName), "abc");
  EXPECT_EQ(grid.CellText(0, kDegrees), "3.00");
  EXPECT_EQ(grid.CellText(0, kCount), "3");
  EXPECT_TRUE(grid.CellChecked(0, kBox));
  EXPECT_EQ(grid.CellText(0, kButton), "Edit...");
  for (int column = 0; column < kColumns; ++column) {
    EXPECT_EQ(grid.CellEditable(0, column), column < kBox) << column;
  }
  grid.InsertRow({"", "", "abc", "", "TRUE", ""});
  EXPECT_EQ(grid.CellText(1, kDegrees), "0.00");
  EXPECT_EQ(grid.CellText(1, kCount), "0");
  EXPECT_FALSE(grid.CellChecked(1, kBox)) << "only the text true checks the box";
}

TEST_F(DynamicDataGrid, TheLastPieceOfADropDownIsShown) {
  const std::tuple<const char*, const char*, QStringList> cases[] = {{"A|B|A", "A", {"A", "B"}},
                                                                     {"A||B|B", "B", {"A", "B"}},
                                                                     {"A|B|", "B", {"A"}},
                                                                     {"|A|B|X", "X", {"A", "B"}},
                                                                     {"X", "X", {}},
                                                                     {"", "", {}},
                                                                     {"|||", "", {}}};
  for (const auto& [value, shown, choices] : cases) {
    const int row = grid.InsertRow({value, "", "0", "0", "", ""});
    EXPECT_EQ(grid.CellText(row, kColor), shown) << value;
    EXPECT_EQ(grid.CellChoices(row, kColor), choices) << value;
  }
}

TEST_F(DynamicDataGrid, RowsKeepTheirIdsAndAreFoundByThem) {
  Fill(3);
  EXPECT_THAT(Ids(), ElementsAre(1, 2, 3));
  EXPECT_EQ(grid.InsertRow(Values("x"), 1, 5), 1);
  grid.InsertRow(Values("y"));
  grid.InsertRow(Values("z"));
  EXPECT_THAT(Ids(), ElementsAre(1, 5, 2, 3, 4, 6)) << "an id in use is passed over";
  for (int row = 0; row < grid.RowCount(); ++row) EXPECT_EQ(grid.RowOfId(grid.RowId(row)), row);
  EXPECT_EQ(grid.RowId(-1), 0u);
  EXPECT_EQ(grid.RowId(6), 0u);
  EXPECT_EQ(grid.RowOfId(77), -1);
  grid.ClearRows();
  grid.InsertRow(Values("n"));
  EXPECT_THAT(Ids(), ElementsAre(7)) << "ids given out do not come back";
  grid.InsertRow(Values("last"), -1, 4294967295u);
  grid.InsertRow(Values("next"));
  EXPECT_EQ(grid.RowId(2), 8u);
}

TEST_F(DynamicDataGrid, WrongInsertsThrowAndChangeNothing) {
  Fill(2);
  const auto refuses = testing::Throws<std::invalid_argument>();
  EXPECT_THAT([this] { grid.InsertRow({"too few"}); }, refuses);
  EXPECT_THAT([this] { grid.InsertRow(Values("x"), 3); }, refuses);
  EXPECT_THAT([this] { grid.InsertRow(Values("x"), -2); }, refuses);
  EXPECT_THAT([this] { grid.InsertRow(Values("x"), -1, 2); }, refuses);
  EXPECT_THAT([this] { grid.InsertRow(Values("x"), -1, 0, {Qt::red}); }, refuses);
  EXPECT_THAT([this] { grid.SetCellText(2, 0, "x"); }, testing::Throws<std::out_of_range>());
  EXPECT_EQ(Names(), "a b");
}

TEST_F(DynamicDataGrid, AReadOnlyRowHasItsLook) {
  const QColor gray(204, 204, 204);
  grid.InsertRow(Values("a"), -1, 0, QList<QColor>(kColumns, Qt::red), true, gray);
  grid.InsertRow(Values("b"));
  EXPECT_FALSE(grid.CellEditable(0, kName));
  EXPECT_FALSE(grid.CellEditable(0, kDegrees));
  EXPECT_TRUE(grid.CellEditable(0, kColor)) << "drop-downs and boxes stay usable";
  EXPECT_EQ(grid.CellBackground(0, kName), gray);
  EXPECT_EQ(grid.CellBackground(0, kBox), grid.palette().color(QPalette::Base));
  EXPECT_EQ(grid.CellBackground(1, kName), grid.palette().color(QPalette::Base));
  const auto ink = [this](int row) {
    return grid.model()->index(row, kName).data(Qt::ForegroundRole).value<QBrush>().color();
  };
  EXPECT_EQ(ink(0), QColor(Qt::red));
  grid.SetCellBackground(1, kName, Qt::white);
  EXPECT_EQ(ink(1), QColor(Qt::black)) << "text on a given background can be read";
  grid.SetCellToolTip(1, kName, "why");
  EXPECT_EQ(grid.CellToolTip(1, kName), "why");
}

// Their names, ids and sources are the random test's.
TEST_F(DynamicDataGrid, ACopyHasTheChoicesAndCanBeEdited) {
  grid.InsertRow(Values("Red", "20", "Blue", true), -1, 0, {}, true);
  grid.SelectRows(0, 0);
  EXPECT_TRUE(grid.DuplicateSelectedRows());
  EXPECT_EQ(grid.CellText(1, kColor), "Blue");
  EXPECT_EQ(grid.CellChoices(1, kColor), QStringList({"Red", "Green", "Blue"}));
  EXPECT_TRUE(grid.CellEditable(1, kName)) << "its source is read-only";
}

TEST_F(DynamicDataGrid, BlocksAreTheRunsOfRowsWithASelectedCell) {
  Fill(6);
  QItemSelectionModel& selection = *grid.selectionModel();
  for (const auto& [row, column] : {std::pair{4, 1}, {1, 0}, {2, 3}}) {
    selection.select(grid.model()->index(row, column), QItemSelectionModel::Select);
  }
  EXPECT_THAT(grid.SelectedRowBlocks(), ElementsAre(Pair(1, 2), Pair(4, 4)));
  const QAbstractItemModel& model = *grid.model();
  selection.select({model.index(0, 0), model.index(5, 0)}, QItemSelectionModel::Select);
  EXPECT_THAT(grid.SelectedRowBlocks(), ElementsAre(Pair(0, 5))) << "one block within another";
  grid.SelectBlocks({{0, 0}, {4, 5}, {9, 9}});
  EXPECT_THAT(grid.SelectedBlocks(), ElementsAre(Pair(0, 0), Pair(4, 5)));
}

TEST_F(DynamicDataGrid, OperationsAreAllowedAsTheSelectionSays) {
  const auto allowed = [this] {
    QString letters;
    for (const RowOperation operation : GUI::kRowOperations) {
      EXPECT_EQ(grid.RowAction(operation)->isEnabled(), grid.IsAllowed(operation));
      letters += grid.IsAllowed(operation) ? "ACDtudb"[static_cast<int>(operation)] : '-';
    }
    return letters;
  };
  Fill(4);
  EXPECT_EQ(allowed(), "-------") << "what a new row holds is not said";
  grid.SetNewRowValues(Values("new"));
  EXPECT_EQ(allowed(), "A------");
  grid.SelectRows(0, 0);
  EXPECT_EQ(allowed(), "ACD--db");
  grid.SelectBlocks({{1, 1}, {3, 3}});
  EXPECT_EQ(allowed(), "ACDtu--");
  grid.InsertRow(Values("e"));
  EXPECT_EQ(allowed(), "ACDtudb") << "the last row is the last no longer";
  grid.SetOperationEnabled(RowOperation::kAdd, false);
  EXPECT_EQ(allowed(), "-CDtudb");
  grid.OfferRowOperations({RowOperation::kDelete});
  EXPECT_EQ(allowed(), "--D----");
  grid.SetReadOnly(true);
  EXPECT_EQ(allowed(), "-------");
  grid.SetReadOnly(false);
  grid.setEnabled(false);
  EXPECT_EQ(allowed(), "-------");
}

TEST_F(DynamicDataGrid, AnOwnerMayTakeTheOperations) {
  Fill(2);
  std::vector<RowOperation> asked;
  grid.SetRowOperationHandler([&](RowOperation operation) { asked.push_back(operation); });
  grid.RunRowOperation(RowOperation::kDelete);
  EXPECT_THAT(asked, IsEmpty()) << "not allowed without a selection";
  grid.SelectRows(0, 0);
  grid.RowAction(RowOperation::kDelete)->trigger();
  grid.RunRowOperation(RowOperation::kAdd);
  EXPECT_THAT(asked, ElementsAre(RowOperation::kDelete, RowOperation::kAdd));
  EXPECT_EQ(grid.RowCount(), 2);
}

TEST_F(DynamicDataGrid, RowChangesAreAnnouncedOnceAround) {
  Fill(4);
  QStringList heard;
  int rowsBefore = -1;
  QObject::connect(&grid, &CDynamicDataGrid::rowsAboutToBeChanged, [&] {
    heard << "about";
    rowsBefore = grid.RowCount();
  });
  QObject::connect(&grid, &CDynamicDataGrid::rowsChanged, [&] { heard << "rows"; });
  QObject::connect(&grid, &CDynamicDataGrid::rowSelectionChanged, [&] { heard << "selection"; });
  grid.SelectBlocks({{0, 0}, {2, 3}});
  EXPECT_EQ(heard, QStringList({"selection"}));
  heard.clear();
  grid.DeleteSelectedRows();
  EXPECT_EQ(heard, QStringList({"about", "rows", "selection"}));
  EXPECT_EQ(rowsBefore, 4);
  EXPECT_EQ(grid.RowCount(), 1);
  heard.clear();
  grid.AddRow(Values("new"));
  EXPECT_EQ(heard, QStringList({"about", "rows", "selection"}));
  EXPECT_THAT(grid.SelectedRowBlocks(), ElementsAre(Pair(1, 1)));
}

TEST_F(DynamicDataGrid, TheProgramsChangesAreNoEdits) {
  Fill(1);
  QSignalSpy toggled(&grid, &CDynamicDataGrid::checkBoxToggled);
  grid.SetCellText(0, kDegrees, "400");
  EXPECT_EQ(grid.CellText(0, kDegrees), "400.00");
  grid.ClearCell(0, kDegrees);
  EXPECT_EQ(grid.CellText(0, kDegrees), "");
  grid.SetCellChecked(0, kBox, true);
  EXPECT_TRUE(grid.CellChecked(0, kBox));
  grid.SetCellText(0, kColor, "None");
  EXPECT_EQ(grid.CellText(0, kColor), "None");
  EXPECT_EQ(grid.CellChoices(0, kColor).size(), 3);
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_THAT(edits, IsEmpty());
  EXPECT_EQ(toggled.count(), 0);
}

TEST_F(DynamicDataGrid, AnEditGoesThroughTheCellsChecks) {
  Fill(2);
  const struct {
    int column;
    const char* text;
    const char* message;
  } refused[] = {{kDegrees, "361", "Please enter a value between 0.00 and 360.00."},
                 {kColor, "Pink", "\"Pink\" is not one of the choices."},
                 {kName, "bell\x07", nullptr}};
  for (const auto& [column, text, message] : refused) {
    const QString before = grid.CellText(1, column);
    grid.EditCell(1, column, text);
    ASSERT_EQ(messages.size(), 1u);
    if (message) {
      EXPECT_EQ(messages[0], message);
    }
    EXPECT_EQ(styles.back(), msgbox::kOk);
    EXPECT_EQ(grid.CellText(1, column), before);
    messages.clear();
  }
  grid.EditCell(1, kDegrees, "150");
  grid.EditCell(1, kDegrees, "150");
  grid.EditCell(1, kCount, "7 pulses");
  EXPECT_THAT(edits, ElementsAre(Pair(1, kDegrees))) << "nothing else was taken or changed";
  grid.EditCell(0, kColor, "Blue");
  EXPECT_EQ(grid.CellText(0, kColor), "Blue");
}

TEST_F(DynamicDataGrid, BoxesAndButtonsAreClicked) {
  Fill(2);
  QSignalSpy toggled(&grid, &CDynamicDataGrid::checkBoxToggled);
  QSignalSpy pushed(&grid, &CDynamicDataGrid::pushButtonClicked);
  QSignalSpy clicked(&grid, &CDynamicDataGrid::cellClicked);
  grid.ToggleCell(1, kBox);
  EXPECT_EQ(toggled.value(0), QVariantList({1, int{kBox}, true}));
  EXPECT_EQ(clicked.value(0), QVariantList({1, int{kBox}}));
  grid.ClickCell(1, kBox);
  EXPECT_EQ(toggled.count(), 1) << "beside the box";
  grid.ClickCell(0, kButton);
  EXPECT_EQ(pushed.value(0), QVariantList({0, int{kButton}}));
  EXPECT_THAT(grid.SelectedRowBlocks(), ElementsAre(Pair(0, 0)));
  grid.SetReadOnly(true);
  grid.ToggleCell(1, kBox);
  grid.ClickCell(0, kButton);
  grid.EditCell(0, kName, "x");
  EXPECT_TRUE(grid.CellChecked(1, kBox));
  EXPECT_EQ(pushed.count(), 1);
  EXPECT_EQ(grid.CellText(0, kName), "a");
  EXPECT_EQ(clicked.count(), 5) << "a read-only cell can still be clicked";
  grid.setEnabled(false);
  grid.ClickCell(0, kName);
  EXPECT_EQ(clicked.count(), 5);
  EXPECT_FALSE(grid.RowEnabled(0));
}

TEST_F(DynamicDataGrid, HeadingsAreShownInLines) {
  grid.SetHeading(kName, "Peak\r\nTrans");
  EXPECT_EQ(grid.TableHeaders().at(kName), "Peak\r\nTrans");
  EXPECT_EQ(grid.model()->headerData(kName, Qt::Horizontal).toString(), "Peak\nTrans");
}

TEST_F(DynamicDataGrid, AnOwnerMayEmptyTheGridWhileACellIsTaken) {
  Fill(2);
  QObject::connect(&grid, &CDynamicDataGrid::cellEditEnded, &grid, [this] { grid.ClearRows(); });
  QObject::connect(&grid, &CDynamicDataGrid::checkBoxToggled, &grid, [this] { grid.ClearRows(); });
  grid.EditCell(0, kName, "x");
  EXPECT_EQ(grid.RowCount(), 0);
  Fill(1);
  grid.ToggleCell(0, kBox);
  EXPECT_EQ(grid.RowCount(), 0);
}

}  // namespace
