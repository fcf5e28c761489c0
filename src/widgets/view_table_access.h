// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QTableView>
#include <QTableWidget>

#include "host/gui/table_access.h"

class QAbstractItemView;

namespace GUI {

/// TableAccess over the top-level rows of any item view and its model.
class ViewTableAccess : public TableAccess {
 public:
  [[nodiscard]] int TableRows() const override;
  [[nodiscard]] int TableColumns() const override;
  [[nodiscard]] QStringList TableHeaders() const override;
  [[nodiscard]] QString CellText(int row, int column) const override;
  /// Does nothing where the cell cannot be edited.
  void EditCell(int row, int column, const QString& text) override;
  [[nodiscard]] QStringList CellChoices(int row, int column) const override;
  [[nodiscard]] bool CellChecked(int row, int column) const override;
  void ToggleCell(int row, int column) override;
  void ClickCell(int row, int column) override;
  /// Blocks outside the rows are left out.
  void SelectBlocks(const Blocks& blocks) override;
  [[nodiscard]] Blocks SelectedBlocks() const override;
  [[nodiscard]] bool CellEditable(int row, int column) const override;
  [[nodiscard]] bool RowEnabled(int row) const override;
  [[nodiscard]] QColor CellBackground(int row, int column) const override;
  [[nodiscard]] QString CellToolTip(int row, int column) const override;

 protected:
  [[nodiscard]] virtual QAbstractItemView& View() const = 0;

 private:
  [[nodiscard]] QModelIndex Cell(int row, int column) const;
};

/// A Qt table that scripts can read; TableView is QTableView, QTableWidget or another item view.
/// It shows data: nothing is edited until the owner sets edit triggers.
template <class TableView>
class AccessibleTable : public TableView, public ViewTableAccess {
 public:
  explicit AccessibleTable(QWidget* parent = nullptr) : TableView(parent) {
    this->setEditTriggers(QAbstractItemView::NoEditTriggers);
    this->setTabKeyNavigation(false);
  }

 protected:
  [[nodiscard]] QAbstractItemView& View() const override {
    return const_cast<AccessibleTable&>(*this);
  }
};

using ReadOnlyTable = AccessibleTable<QTableWidget>;
using ReadOnlyTableView = AccessibleTable<QTableView>;

}  // namespace GUI
