// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <memory>

#include "host/gui/table_access.h"

namespace automation {

/// A table of a form, worked as a person does. Rows and columns count from 0 without header row
/// and row headings; a place outside the table throws AutomationError, and so do an edit of a
/// cell that cannot be edited and every click into a table or row that is hidden or disabled.
class Table {
 public:
  /// Whether the widget is a table: it implements TableAccess, or is one of Qt's item views.
  [[nodiscard]] static bool IsTable(QWidget& widget);
  /// `widget` is a table.
  Table(QWidget& widget, QString name);

  [[nodiscard]] const QString& Name() const noexcept { return name_; }
  [[nodiscard]] int Rows() const { return Access().TableRows(); }
  [[nodiscard]] int Columns() const { return Access().TableColumns(); }
  [[nodiscard]] QStringList Headers() const { return Access().TableHeaders(); }

  [[nodiscard]] QString Cell(int row, int column) const;
  /// Edits in place and ends the edit.
  void SetCell(int row, int column, const QString& text);
  /// The list of a drop-down cell; empty for others.
  [[nodiscard]] QStringList Choices(int row, int column) const;
  [[nodiscard]] bool Checked(int row, int column) const;
  /// Clicks the cell's check box.
  void Toggle(int row, int column);
  void ClickCell(int row, int column);

  /// Selects these rows and no others; each block is a first and a last row.
  void Select(const TableAccess::Blocks& blocks);
  [[nodiscard]] TableAccess::Blocks Selected() const { return Access().SelectedBlocks(); }

  [[nodiscard]] bool Editable(int row, int column) const;
  [[nodiscard]] bool RowEnabled(int row) const;
  /// "#rrggbb".
  [[nodiscard]] QString Background(int row, int column) const;
  [[nodiscard]] QString ToolTip(int row, int column) const;

 private:
  [[nodiscard]] TableAccess& Access() const;
  void RequireRow(int row) const;
  /// The table when it has that cell.
  [[nodiscard]] TableAccess& At(int row, int column) const;
  /// What every click into a row begins with: the table can be reached and takes the focus.
  void Reach(int row) const;
  void Reach() const;

  QPointer<QWidget> widget_;
  QString name_;
  std::shared_ptr<TableAccess> adapter_;  ///< for an item view without an access of its own
};

}  // namespace automation
