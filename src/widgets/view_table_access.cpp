// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/view_table_access.h"

#include <QAbstractItemView>
#include <QBrush>

#include "widgets/rules/row_blocks.h"

namespace GUI {

namespace {

Qt::CheckState CheckStateOf(const QModelIndex& cell) {
  return static_cast<Qt::CheckState>(cell.data(Qt::CheckStateRole).toInt());
}

}  // namespace

QModelIndex ViewTableAccess::Cell(int row, int column) const {
  return View().model()->index(row, column);
}

int ViewTableAccess::TableRows() const { return View().model()->rowCount(); }

int ViewTableAccess::TableColumns() const { return View().model()->columnCount(); }

QStringList ViewTableAccess::TableHeaders() const {
  QStringList headers;
  for (int column = 0; column < TableColumns(); ++column) {
    headers << View().model()->headerData(column, Qt::Horizontal).toString();
  }
  return headers;
}

QString ViewTableAccess::CellText(int row, int column) const {
  return Cell(row, column).data().toString();
}

void ViewTableAccess::EditCell(int row, int column, const QString& text) {
  if (!CellEditable(row, column)) return;
  View().setCurrentIndex(Cell(row, column));
  View().model()->setData(Cell(row, column), text);
}

QStringList ViewTableAccess::CellChoices(int, int) const { return {}; }

bool ViewTableAccess::CellChecked(int row, int column) const {
  return CheckStateOf(Cell(row, column)) == Qt::Checked;
}

void ViewTableAccess::ToggleCell(int row, int column) {
  const QModelIndex cell = Cell(row, column);
  const bool hasBox = cell.data(Qt::CheckStateRole).isValid();
  if (!RowEnabled(row) || !hasBox || !cell.flags().testFlag(Qt::ItemIsUserCheckable)) return;
  View().setCurrentIndex(cell);
  const Qt::CheckState toggled = CellChecked(row, column) ? Qt::Unchecked : Qt::Checked;
  View().model()->setData(cell, toggled, Qt::CheckStateRole);
  emit View().clicked(cell);
}

void ViewTableAccess::ClickCell(int row, int column) {
  const QModelIndex cell = Cell(row, column);
  if (!cell.isValid() || !RowEnabled(row)) return;
  View().setCurrentIndex(cell);
  emit View().pressed(cell);
  emit View().clicked(cell);
}

void ViewTableAccess::SelectBlocks(const Blocks& blocks) {
  if (!View().isEnabled() || View().selectionMode() == QAbstractItemView::NoSelection) return;
  QItemSelection selection;
  for (const auto& [first, last] : blocks) {
    const QModelIndex top = Cell(first, 0), bottom = Cell(last, TableColumns() - 1);
    if (top.isValid() && bottom.isValid()) selection.append(QItemSelectionRange(top, bottom));
  }
  QItemSelectionModel& selected = *View().selectionModel();
  if (!selection.isEmpty()) {
    selected.setCurrentIndex(selection.front().topLeft(), QItemSelectionModel::NoUpdate);
  }
  selected.select(selection, QItemSelectionModel::ClearAndSelect);
}

TableAccess::Blocks ViewTableAccess::SelectedBlocks() const {
  Blocks blocks;
  for (const QItemSelectionRange& range : View().selectionModel()->selection()) {
    blocks.emplace_back(range.top(), range.bottom());
  }
  return MergedBlocks(std::move(blocks));
}

bool ViewTableAccess::CellEditable(int row, int column) const {
  return RowEnabled(row) && View().editTriggers() != QAbstractItemView::NoEditTriggers &&
         Cell(row, column).flags().testFlag(Qt::ItemIsEditable);
}

bool ViewTableAccess::RowEnabled(int row) const {
  return View().isEnabled() && Cell(row, 0).flags().testFlag(Qt::ItemIsEnabled);
}

QColor ViewTableAccess::CellBackground(int row, int column) const {
  const QVariant brush = Cell(row, column).data(Qt::BackgroundRole);
  if (brush.isValid()) return brush.value<QBrush>().color();
  return View().palette().color(QPalette::Base);
}

QString ViewTableAccess::CellToolTip(int row, int column) const {
  return Cell(row, column).data(Qt::ToolTipRole).toString();
}

}  // namespace GUI
