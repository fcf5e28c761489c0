// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/table.h"

#include <QAbstractItemView>
#include <utility>

#include "automation/automation_error.h"
#include "automation/input.h"
#include "automation/item_view_table.h"
#include "automation/reach.h"

namespace automation {

bool Table::IsTable(QWidget& widget) {
  return dynamic_cast<TableAccess*>(&widget) != nullptr ||
         qobject_cast<QAbstractItemView*>(&widget) != nullptr;
}

Table::Table(QWidget& widget, QString name) : widget_(&widget), name_(std::move(name)) {
  if (dynamic_cast<TableAccess*>(&widget) == nullptr)
    adapter_ = std::make_shared<ItemViewTable>(*qobject_cast<QAbstractItemView*>(&widget), name_);
}

TableAccess& Table::Access() const {
  if (!widget_) throw AutomationError(QStringLiteral("\"%1\" is no longer there").arg(name_));
  return adapter_ ? *adapter_ : *dynamic_cast<TableAccess*>(widget_.data());
}

void Table::RequireRow(int row) const {
  const int rows = Access().TableRows();
  if (row >= 0 && row < rows) return;
  throw AutomationError(
      QStringLiteral("\"%1\" has no row %2; it has %3 rows").arg(name_).arg(row).arg(rows));
}

TableAccess& Table::At(int row, int column) const {
  RequireRow(row);
  const int columns = Access().TableColumns();
  if (column >= 0 && column < columns) return Access();
  throw AutomationError(QStringLiteral("\"%1\" has no column %2; it has %3 columns")
                            .arg(name_)
                            .arg(column)
                            .arg(columns));
}

void Table::Reach() const {
  RequireReach(*widget_, name_);
  if ((widget_->focusPolicy() & Qt::ClickFocus) == 0) return;
  GiveFocus(*widget_, Qt::MouseFocusReason);
  // Leaving another field may have changed what can be reached.
  (void)Access();
  RequireReach(*widget_, name_);
}

void Table::Reach(int row) const {
  Reach();
  RequireRow(row);
  if (!Access().RowEnabled(row))
    throw AutomationError(QStringLiteral("row %2 of \"%1\" is disabled").arg(name_).arg(row));
}

QString Table::Cell(int row, int column) const { return At(row, column).CellText(row, column); }

void Table::SetCell(int row, int column, const QString& text) {
  TableAccess& access = At(row, column);
  Reach(row);
  if (!access.CellEditable(row, column)) {
    throw AutomationError(
        QStringLiteral("cell (%2, %3) of \"%1\" cannot be edited").arg(name_).arg(row).arg(column));
  }
  access.EditCell(row, column, text);
  Settle();
}

QStringList Table::Choices(int row, int column) const {
  return At(row, column).CellChoices(row, column);
}

bool Table::Checked(int row, int column) const { return At(row, column).CellChecked(row, column); }

void Table::Toggle(int row, int column) {
  TableAccess& access = At(row, column);
  Reach(row);
  access.ToggleCell(row, column);
  Settle();
}

void Table::ClickCell(int row, int column) {
  TableAccess& access = At(row, column);
  Reach(row);
  access.ClickCell(row, column);
  Settle();
}

void Table::Select(const TableAccess::Blocks& blocks) {
  for (const auto& [first, last] : blocks) {
    RequireRow(first);
    RequireRow(last);
    if (first > last) {
      throw AutomationError(QStringLiteral("the rows %2 to %3 of \"%1\" are no block")
                                .arg(name_)
                                .arg(first)
                                .arg(last));
    }
  }
  TableAccess& access = Access();
  Reach();
  access.SelectBlocks(blocks);
  Settle();
}

bool Table::Editable(int row, int column) const {
  return At(row, column).CellEditable(row, column);
}

bool Table::RowEnabled(int row) const {
  RequireRow(row);
  return Access().RowEnabled(row);
}

QString Table::Background(int row, int column) const {
  return At(row, column).CellBackground(row, column).name(QColor::HexRgb);
}

QString Table::ToolTip(int row, int column) const {
  return At(row, column).CellToolTip(row, column);
}

}  // namespace automation
