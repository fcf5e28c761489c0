// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QAbstractItemView>
#include <QModelIndex>
#include <optional>

#include "automation/control.h"
#include "host/gui/table_access.h"

namespace automation {

/// Works one of Qt's item views as a table. Hidden rows and columns do not count; a tree's rows
/// are those that are unfolded, in the order they stand. The caller sees to it that cells exist,
/// and that the view has the focus before it is clicked.
class ItemViewTable : public TableAccess {
 public:
  /// The view outlives the table; `name` is what errors call it.
  ItemViewTable(QAbstractItemView& view, QString name);

  [[nodiscard]] int TableRows() const override;
  [[nodiscard]] int TableColumns() const override;
  [[nodiscard]] QStringList TableHeaders() const override;
  [[nodiscard]] QString CellText(int row, int column) const override;
  void EditCell(int row, int column, const QString& text) override;
  [[nodiscard]] QStringList CellChoices(int row, int column) const override;
  [[nodiscard]] bool CellChecked(int row, int column) const override;
  void ToggleCell(int row, int column) override;
  void ClickCell(int row, int column) override;
  void SelectBlocks(const Blocks& blocks) override;
  [[nodiscard]] Blocks SelectedBlocks() const override;
  [[nodiscard]] bool CellEditable(int row, int column) const override;
  [[nodiscard]] bool RowEnabled(int row) const override;
  [[nodiscard]] QColor CellBackground(int row, int column) const override;
  [[nodiscard]] QString CellToolTip(int row, int column) const override;

 private:
  [[nodiscard]] std::vector<QModelIndex> ShownRows() const;
  [[nodiscard]] std::vector<int> ShownColumns() const;
  /// The first cell of a row, its column hidden or not.
  [[nodiscard]] QModelIndex First(int row) const;
  [[nodiscard]] QModelIndex Index(int row, int column) const;
  /// A widget that always stands in the cell, as a control of its own.
  [[nodiscard]] std::optional<Control> CellWidget(const QModelIndex& index) const;
  [[nodiscard]] QString CellName(const QModelIndex& index) const;
  /// The editor that opens for the cell, shown and with the focus.
  [[nodiscard]] QWidget& OpenEditor(const QModelIndex& index);

  QAbstractItemView& view_;
  QString name_;
};

}  // namespace automation
