// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <gmock/gmock.h>

#include <QtTest>
#include <string>
#include <vector>

#include "host/gui/message_box.h"
#include "widgets/dynamic_data_grid.h"

/// A grid with one column of each kind, shown in an active window, and what it said.
class GridFixture : public testing::Test {
 protected:
  enum Column { kColor, kName, kDegrees, kCount, kBox, kButton, kColumns };

  GridFixture() {
    using enum GUI::CellKind;
    const GUI::GridColumn columns[] = {{"Color", false, kDropDown},
                                       {"Name", true, kText},
                                       {"Degrees", false, kNumber, 2, 0.0, 360.0, true, true},
                                       {"Count", false, kNumber},
                                       {"Via", false, kCheckBox},
                                       {"Operation", false, kPushButton}};
    grid.SetColumns(columns);
    SetMessageBoxResponder([this](const std::string& text, const std::string&, unsigned style) {
      messages.push_back(text);
      styles.push_back(style);
      return msgbox::kAnswerOk;
    });
    QObject::connect(&grid, &GUI::CDynamicDataGrid::cellEditEnded,
                     [this](int row, int column) { edits.emplace_back(row, column); });
  }

  ~GridFixture() override { SetMessageBoxResponder({}); }

  static QStringList Values(const QString& name, const QString& degrees = "10",
                            const QString& color = "Red", bool via = false) {
    return {"Red|Green|Blue|" + color, name, degrees, "7", via ? "true" : "false", "Edit..."};
  }

  /// Rows named a, b, c and so on.
  void Fill(int rows) {
    for (int i = 0; i < rows; ++i) grid.InsertRow(Values(QString(QChar('a' + i))));
  }

  void Show() {
    grid.resize(700, 400);
    grid.show();
    grid.activateWindow();
    grid.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
  }

  void GoTo(int row, int column) {
    grid.selectionModel()->setCurrentIndex(grid.model()->index(row, column),
                                           QItemSelectionModel::ClearAndSelect);
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    // Ends of edits are queued.
    QApplication::processEvents();
  }

  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
  }

  [[nodiscard]] std::pair<int, int> Current() const {
    return {grid.currentIndex().row(), grid.currentIndex().column()};
  }

  [[nodiscard]] QString Names() const {
    QStringList names;
    for (int row = 0; row < grid.RowCount(); ++row) names << grid.CellText(row, kName);
    return names.join(' ');
  }

  [[nodiscard]] std::vector<unsigned> Ids() const {
    std::vector<unsigned> ids;
    for (int row = 0; row < grid.RowCount(); ++row) ids.push_back(grid.RowId(row));
    return ids;
  }

  /// Where the middle of a cell is in the viewport.
  [[nodiscard]] QPoint Middle(int row, int column) const {
    return grid.visualRect(grid.model()->index(row, column)).center();
  }

  void Click(QPoint place) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }

  std::vector<std::string> messages;
  std::vector<unsigned> styles;
  std::vector<std::pair<int, int>> edits;
  GUI::CDynamicDataGrid grid;
};
