// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/item_view_table.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeView>
#include <algorithm>
#include <utility>

#include "automation/automation_error.h"
#include "automation/input.h"

namespace automation {
namespace {

bool RowHidden(const QAbstractItemView& view, int row) {
  if (const auto* table = qobject_cast<const QTableView*>(&view)) return table->isRowHidden(row);
  const auto* list = qobject_cast<const QListView*>(&view);
  return list != nullptr && list->isRowHidden(row);
}

/// The usual case, in which a row need not be searched.
bool ShowsAllRows(const QAbstractItemView& view) {
  const auto* table = qobject_cast<const QTableView*>(&view);
  return table && table->model() && !table->verticalHeader()->sectionsHidden();
}

bool ColumnShown(const QAbstractItemView& view, int column) {
  if (const auto* table = qobject_cast<const QTableView*>(&view))
    return !table->isColumnHidden(column);
  if (const auto* tree = qobject_cast<const QTreeView*>(&view))
    return !tree->isColumnHidden(column);
  const auto* list = qobject_cast<const QListView*>(&view);
  return list == nullptr || list->modelColumn() == column;
}

QStringList ComboTexts(const QComboBox& combo) {
  QStringList texts;
  for (int i = 0; i < combo.count(); ++i) texts.append(combo.itemText(i));
  return texts;
}

/// The check box that a cell widget is or holds.
QAbstractButton* CheckBoxIn(QWidget& widget) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button;
  for (QAbstractButton* button : widget.findChildren<QAbstractButton*>())
    if (button->isCheckable()) return button;
  return nullptr;
}

}  // namespace

ItemViewTable::ItemViewTable(QAbstractItemView& view, QString name)
    : view_(view), name_(std::move(name)) {}

std::vector<QModelIndex> ItemViewTable::ShownRows() const {
  std::vector<QModelIndex> rows;
  const QAbstractItemModel* model = view_.model();
  if (model == nullptr) return rows;
  if (const auto* tree = qobject_cast<const QTreeView*>(&view_)) {
    for (QModelIndex at = model->index(0, 0, tree->rootIndex()); at.isValid();
         at = tree->indexBelow(at))
      rows.push_back(at);
    return rows;
  }
  for (int row = 0; row < model->rowCount(view_.rootIndex()); ++row)
    if (!RowHidden(view_, row)) rows.push_back(model->index(row, 0, view_.rootIndex()));
  return rows;
}

std::vector<int> ItemViewTable::ShownColumns() const {
  std::vector<int> columns;
  const int all = view_.model() ? view_.model()->columnCount(view_.rootIndex()) : 0;
  for (int column = 0; column < all; ++column)
    if (ColumnShown(view_, column)) columns.push_back(column);
  return columns;
}

QModelIndex ItemViewTable::First(int row) const {
  return ShowsAllRows(view_) ? view_.model()->index(row, 0, view_.rootIndex())
                             : ShownRows().at(static_cast<std::size_t>(row));
}

QModelIndex ItemViewTable::Index(int row, int column) const {
  return First(row).siblingAtColumn(ShownColumns().at(static_cast<std::size_t>(column)));
}

std::optional<Control> ItemViewTable::CellWidget(const QModelIndex& index) const {
  QWidget* widget = view_.indexWidget(index);
  if (widget == nullptr) return std::nullopt;
  QAbstractButton* box = CheckBoxIn(*widget);
  return Control(box ? *box : *widget, CellName(index));
}

QString ItemViewTable::CellName(const QModelIndex& index) const {
  return QStringLiteral("%1, row %2, column %3").arg(name_).arg(index.row()).arg(index.column());
}

int ItemViewTable::TableRows() const {
  return ShowsAllRows(view_) ? view_.model()->rowCount(view_.rootIndex())
                             : static_cast<int>(ShownRows().size());
}

int ItemViewTable::TableColumns() const { return static_cast<int>(ShownColumns().size()); }

QStringList ItemViewTable::TableHeaders() const {
  QStringList headers;
  for (const int column : ShownColumns())
    headers.append(view_.model()->headerData(column, Qt::Horizontal).toString());
  return headers;
}

QString ItemViewTable::CellText(int row, int column) const {
  const QModelIndex index = Index(row, column);
  if (const auto widget = CellWidget(index)) return widget->Text();
  const auto* delegate = qobject_cast<QStyledItemDelegate*>(view_.itemDelegateForIndex(index));
  return delegate ? delegate->displayText(index.data(), view_.locale()) : index.data().toString();
}

QWidget& ItemViewTable::OpenEditor(const QModelIndex& index) {
  // Editors are children of the viewport; one of an earlier edit may still wait there, hidden.
  const auto shown = [this] {
    QWidgetList widgets =
        view_.viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    widgets.removeIf([](const QWidget* widget) { return !widget->isVisible(); });
    return widgets;
  };
  view_.scrollTo(index);
  view_.setCurrentIndex(index);
  const QWidgetList before = shown();
  view_.edit(index);
  for (QWidget* widget : shown())
    if (!before.contains(widget)) return *widget;
  // The view may have opened the editor already when the cell became the current one.
  QWidget* focused = QApplication::focusWidget();
  if (focused != nullptr && view_.viewport()->isAncestorOf(focused)) return *focused;
  throw AutomationError(QStringLiteral("\"%1\" opens no editor").arg(CellName(index)));
}

void ItemViewTable::EditCell(int row, int column, const QString& text) {
  const QModelIndex index = Index(row, column);
  if (auto widget = CellWidget(index)) return widget->SetText(text);
  const QPointer<QWidget> widget = &OpenEditor(index);
  Control editor(*widget, CellName(index));
  const auto* combo = qobject_cast<QComboBox*>(widget.data());
  if (combo != nullptr && !combo->isEditable()) {
    editor.Choose(text);
  } else {
    SelectAllText(*widget);
    editor.Type(text.isEmpty() ? QStringLiteral("\x7f") : text);
  }
  if (widget && widget->isVisible()) PressCharacter(*widget, '\n');
  Settle();
}

QStringList ItemViewTable::CellChoices(int row, int column) const {
  const QModelIndex index = Index(row, column);
  if (QWidget* widget = view_.indexWidget(index)) {
    const auto* combo = qobject_cast<QComboBox*>(widget);
    return combo ? ComboTexts(*combo) : QStringList();
  }
  // Only the delegate knows its list: ask it for an editor that is never shown.
  QAbstractItemDelegate* delegate = view_.itemDelegateForIndex(index);
  const std::unique_ptr<QWidget> editor(
      delegate->createEditor(view_.viewport(), QStyleOptionViewItem(), index));
  const auto* combo = qobject_cast<QComboBox*>(editor.get());
  if (combo == nullptr) return {};
  delegate->setEditorData(editor.get(), index);
  return ComboTexts(*combo);
}

bool ItemViewTable::CellChecked(int row, int column) const {
  const QModelIndex index = Index(row, column);
  if (QWidget* widget = view_.indexWidget(index)) {
    const QAbstractButton* box = CheckBoxIn(*widget);
    return box != nullptr && box->isChecked();
  }
  return index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
}

void ItemViewTable::ToggleCell(int row, int column) {
  const QModelIndex index = Index(row, column);
  if (auto widget = CellWidget(index)) return widget->Click();
  if (!index.data(Qt::CheckStateRole).isValid())
    throw AutomationError(QStringLiteral("\"%1\" cannot be checked").arg(CellName(index)));
  view_.setCurrentIndex(index);
  PressKey(view_, Qt::Key_Space, {}, " ");
}

void ItemViewTable::ClickCell(int row, int column) {
  const QModelIndex index = Index(row, column);
  if (auto widget = CellWidget(index)) return widget->Click();
  view_.scrollTo(index);
  ClickAt(*view_.viewport(), view_.visualRect(index).center());
}

void ItemViewTable::SelectBlocks(const Blocks& blocks) {
  const auto mode = view_.selectionMode();
  const bool many =
      blocks.size() > 1 || (blocks.size() == 1 && blocks[0].first != blocks[0].second);
  if (mode == QAbstractItemView::NoSelection ||
      (many && mode == QAbstractItemView::SingleSelection))
    throw AutomationError(QStringLiteral("\"%1\" does not let these rows be selected").arg(name_));
  const int lastColumn = TableColumns() - 1;
  QItemSelection selection;
  for (const auto& [first, last] : blocks)
    for (int row = first; row <= last; ++row)
      selection.select(Index(row, 0), Index(row, lastColumn));
  QItemSelectionModel* model = view_.selectionModel();
  if (!blocks.empty())
    model->setCurrentIndex(Index(blocks.back().second, 0), QItemSelectionModel::NoUpdate);
  model->select(selection, QItemSelectionModel::ClearAndSelect);
}

TableAccess::Blocks ItemViewTable::SelectedBlocks() const {
  const QItemSelectionModel* model = view_.selectionModel();
  const std::vector<QModelIndex> rows = ShownRows();
  Blocks blocks;
  for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
    const QModelIndex& first = rows[static_cast<std::size_t>(row)];
    if (!model->rowIntersectsSelection(first.row(), first.parent())) continue;
    if (blocks.empty() || blocks.back().second + 1 != row) blocks.emplace_back(row, row);
    blocks.back().second = row;
  }
  return blocks;
}

bool ItemViewTable::CellEditable(int row, int column) const {
  const QModelIndex index = Index(row, column);
  if (const QWidget* widget = view_.indexWidget(index)) return widget->isEnabled();
  return view_.isEnabled() && view_.editTriggers() != QAbstractItemView::NoEditTriggers &&
         index.flags().testFlags(Qt::ItemIsEditable | Qt::ItemIsEnabled);
}

bool ItemViewTable::RowEnabled(int row) const {
  const std::vector<int> columns = ShownColumns();
  const QModelIndex first = First(row);
  return view_.isEnabled() && std::any_of(columns.begin(), columns.end(), [&](int column) {
           return first.siblingAtColumn(column).flags().testFlag(Qt::ItemIsEnabled);
         });
}

QColor ItemViewTable::CellBackground(int row, int column) const {
  const QVariant brush = Index(row, column).data(Qt::BackgroundRole);
  if (brush.isValid()) return brush.value<QBrush>().color();
  const bool alternate = view_.alternatingRowColors() && row % 2 == 1;
  return view_.palette().color(alternate ? QPalette::AlternateBase : QPalette::Base);
}

QString ItemViewTable::CellToolTip(int row, int column) const {
  return Index(row, column).data(Qt::ToolTipRole).toString();
}

}  // namespace automation
