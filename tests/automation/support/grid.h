// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QFrame>
#include <QStringList>

#include "host/gui/table_access.h"

namespace test {

/// A table of its own making: two columns, row 2 disabled, column 1 cannot be edited.
class Grid : public QFrame, public TableAccess {
 public:
  explicit Grid(QWidget* parent) : QFrame(parent) {
    setMinimumSize(20, 20);
    setFocusPolicy(Qt::StrongFocus);
  }

  [[nodiscard]] int TableRows() const override { return 4; }
  [[nodiscard]] int TableColumns() const override { return 2; }
  [[nodiscard]] QStringList TableHeaders() const override { return {"Key", "Größe"}; }
  [[nodiscard]] QString CellText(int row, int column) const override {
    return column == 0 ? keys[row] : QString::number(row * 10);
  }
  void EditCell(int row, int, const QString& text) override { keys[row] = text; }
  [[nodiscard]] QStringList CellChoices(int, int column) const override {
    return column == 0 ? QStringList{"a", "b"} : QStringList();
  }
  [[nodiscard]] bool CellChecked(int row, int column) const override {
    return column == 0 && row == checkedRow;
  }
  void ToggleCell(int row, int) override { checkedRow = row; }
  void ClickCell(int row, int column) override { clicked = {row, column}; }
  void SelectBlocks(const Blocks& blocks) override { selection = blocks; }
  [[nodiscard]] Blocks SelectedBlocks() const override { return selection; }
  [[nodiscard]] bool CellEditable(int, int column) const override { return column == 0; }
  [[nodiscard]] bool RowEnabled(int row) const override { return row != 2; }
  [[nodiscard]] QColor CellBackground(int row, int) const override {
    return row == 0 ? QColor(255, 200, 0) : QColor(Qt::white);
  }
  [[nodiscard]] QString CellToolTip(int row, int) const override {
    return QStringLiteral("row %1").arg(row);
  }

  QStringList keys{"k0", "k1", "k2", "k3"};
  int checkedRow = -1;
  std::pair<int, int> clicked{-1, -1};
  Blocks selection;
};

}  // namespace test
