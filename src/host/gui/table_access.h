// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// How scripts and tests work with a table that has more than plain cells. A table widget
/// implements it beside its Qt base class; rows and columns count from 0 without header row and
/// row headings. Every edit goes the way of the person's: checks and messages included.
class TableAccess {
 public:
  virtual ~TableAccess() = default;

  using Blocks = std::vector<std::pair<int, int>>;

  [[nodiscard]] virtual int TableRows() const = 0;
  [[nodiscard]] virtual int TableColumns() const = 0;
  [[nodiscard]] virtual QStringList TableHeaders() const = 0;
  [[nodiscard]] virtual QString CellText(int row, int column) const = 0;
  /// Edits the cell in place, as typing over it and leaving it does.
  virtual void EditCell(int row, int column, const QString& text) = 0;
  [[nodiscard]] virtual QStringList CellChoices(int row, int column) const = 0;
  [[nodiscard]] virtual bool CellChecked(int row, int column) const = 0;
  /// Clicks the cell's check box.
  virtual void ToggleCell(int row, int column) = 0;
  virtual void ClickCell(int row, int column) = 0;
  virtual void SelectBlocks(const Blocks& blocks) = 0;
  [[nodiscard]] virtual Blocks SelectedBlocks() const = 0;
  [[nodiscard]] virtual bool CellEditable(int row, int column) const = 0;
  [[nodiscard]] virtual bool RowEnabled(int row) const = 0;
  [[nodiscard]] virtual QColor CellBackground(int row, int column) const = 0;
  [[nodiscard]] virtual QString CellToolTip(int row, int column) const = 0;
};
