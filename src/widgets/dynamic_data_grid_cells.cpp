// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// Cells of the grid: the program's access, and that of scripts, which goes a person's way.
#include <stdexcept>

#include "widgets/dynamic_data_grid_private.h"

namespace GUI {

void CDynamicDataGrid::Private::NeedCell(int row, int column) const {
  if (!model.Holds(row, column)) throw std::out_of_range("no such cell");
}

CellKind CDynamicDataGrid::KindOf(int column) const { return d_->model.Column(column).kind; }

void CDynamicDataGrid::SetCellText(int row, int column, const QString& text) {
  d_->NeedCell(row, column);
  d_->model.SetText(row, column, text);
}

void CDynamicDataGrid::ClearCell(int row, int column) {
  d_->NeedCell(row, column);
  d_->model.SetTextUnformatted(row, column, {});
}

void CDynamicDataGrid::SetChoices(int row, int column, const QStringList& choices) {
  d_->NeedCell(row, column);
  d_->model.SetChoices(row, column, choices);
}

void CDynamicDataGrid::SetCellChecked(int row, int column, bool checked) {
  SetCellText(row, column, checked ? QStringLiteral("true") : QStringLiteral("false"));
}

template <class Change>
void CDynamicDataGrid::Private::ChangeLook(int row, int column, Change change) {
  NeedCell(row, column);
  CellLook look = model.Look(row, column);
  change(look);
  model.SetLook(row, column, look);
}

void CDynamicDataGrid::SetCellBackground(int row, int column, const QColor& color) {
  d_->ChangeLook(row, column, [&](CellLook& look) { look.background = color; });
}

void CDynamicDataGrid::SetCellTextColor(int row, int column, const QColor& color) {
  d_->ChangeLook(row, column, [&](CellLook& look) { look.text = color; });
}

void CDynamicDataGrid::SetCellToolTip(int row, int column, const QString& text) {
  d_->ChangeLook(row, column, [&](CellLook& look) { look.toolTip = text; });
}

void CDynamicDataGrid::SetCellReadOnly(int row, int column, bool readOnly) {
  d_->ChangeLook(row, column, [&](CellLook& look) { look.readOnly = readOnly; });
}

void CDynamicDataGrid::SetReadOnly(bool readOnly) {
  if (readOnly == IsReadOnly()) return;
  EndEditing();
  d_->model.SetReadOnly(readOnly);
  d_->UpdateActions();
}

bool CDynamicDataGrid::IsReadOnly() const { return d_->model.IsReadOnly(); }

void CDynamicDataGrid::EndEditing() {
  QWidget* editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
  if (!editor) return;
  commitData(editor);
  closeEditor(editor, QAbstractItemDelegate::NoHint);
}

QModelIndex CDynamicDataGrid::CellAt(int row, int column) const {
  return d_->model.index(row, column);
}

int CDynamicDataGrid::TableRows() const { return RowCount(); }

int CDynamicDataGrid::TableColumns() const { return ColumnCount(); }

QStringList CDynamicDataGrid::TableHeaders() const {
  QStringList headers;
  for (int column = 0; column < ColumnCount(); ++column) {
    headers << d_->model.Column(column).heading;
  }
  return headers;
}

QString CDynamicDataGrid::CellText(int row, int column) const {
  return d_->model.Holds(row, column) ? d_->model.Row(row).texts[column] : QString();
}

bool CDynamicDataGrid::SelectCell(int row, int column) {
  if (!isEnabled() || !d_->model.Holds(row, column)) return false;
  EndEditing();
  // Whatever keys are held: a script's click is a plain one.
  selectionModel()->setCurrentIndex(CellAt(row, column), QItemSelectionModel::ClearAndSelect);
  return true;
}

void CDynamicDataGrid::EditCell(int row, int column, const QString& text) {
  if (!CellEditable(row, column) || !SelectCell(row, column)) return;
  d_->model.setData(CellAt(row, column), text, Qt::EditRole);
}

QStringList CDynamicDataGrid::CellChoices(int row, int column) const {
  return d_->model.Holds(row, column) ? d_->model.Choices(row, column) : QStringList();
}

bool CDynamicDataGrid::CellChecked(int row, int column) const {
  return d_->model.Holds(row, column) && KindOf(column) == CellKind::kCheckBox &&
         d_->model.IsChecked(row, column);
}

void CDynamicDataGrid::ToggleCell(int row, int column) {
  if (!d_->model.Holds(row, column) || KindOf(column) != CellKind::kCheckBox) return;
  if (!SelectCell(row, column)) return;
  const Qt::CheckState toggled = CellChecked(row, column) ? Qt::Unchecked : Qt::Checked;
  d_->model.setData(CellAt(row, column), toggled, Qt::CheckStateRole);
  if (const QModelIndex cell = CellAt(row, column); cell.isValid()) emit clicked(cell);
}

void CDynamicDataGrid::ClickCell(int row, int column) {
  if (!SelectCell(row, column)) return;
  if (KindOf(column) == CellKind::kPushButton && !IsReadOnly()) emit pushButtonClicked(row, column);
  if (const QModelIndex cell = CellAt(row, column); cell.isValid()) emit clicked(cell);
}

void CDynamicDataGrid::SelectBlocks(const Blocks& blocks) {
  if (isEnabled()) d_->Select(blocks);
}

TableAccess::Blocks CDynamicDataGrid::SelectedBlocks() const { return SelectedRowBlocks(); }

bool CDynamicDataGrid::CellEditable(int row, int column) const {
  return isEnabled() && d_->model.Holds(row, column) && KindOf(column) != CellKind::kCheckBox &&
         d_->model.IsChangeable(row, column);
}

bool CDynamicDataGrid::RowEnabled(int row) const {
  return isEnabled() && row >= 0 && row < RowCount();
}

QColor CDynamicDataGrid::CellBackground(int row, int column) const {
  if (!d_->model.Holds(row, column)) return {};
  const QColor own = d_->model.Look(row, column).background;
  return own.isValid() ? own : palette().color(QPalette::Base);
}

QString CDynamicDataGrid::CellToolTip(int row, int column) const {
  return d_->model.Holds(row, column) ? d_->model.Look(row, column).toolTip : QString();
}

}  // namespace GUI
