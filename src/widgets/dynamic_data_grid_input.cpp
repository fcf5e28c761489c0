// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// Keyboard, mouse and clipboard of the grid.
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include "host/gui/message_box.h"
#include "widgets/dynamic_data_grid_private.h"
#include "widgets/grid_clipboard.h"

namespace GUI {

void CDynamicDataGrid::AddClipboardActions() {
  const auto add = [this](const QString& text, QKeySequence::StandardKey keys, auto run) {
    auto* action = new QAction(text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, run);
    return action;
  };
  QAction* copy = add(tr("Copy"), QKeySequence::Copy, &CDynamicDataGrid::CopyCells);
  d_->paste = add(tr("Paste"), QKeySequence::Paste, &CDynamicDataGrid::PasteCells);
  auto* line = new QAction(this);
  line->setSeparator(true);
  insertActions(RowAction(RowOperation::kAdd), {copy, d_->paste, line});
  auto* secondLine = new QAction(this);
  secondLine->setSeparator(true);
  insertAction(RowAction(RowOperation::kMoveToTop), secondLine);
}

void CDynamicDataGrid::CopyCells() {
  const QItemSelection selection = selectionModel()->selection();
  if (!selection.isEmpty()) {
    QGuiApplication::clipboard()->setText(CopiedCells(d_->model, selection));
  }
}

void CDynamicDataGrid::PasteCells() {
  const PastePlan plan =
      PlanPaste(d_->model, selectionModel()->selection(), QGuiApplication::clipboard()->text());
  if (plan.refusal) {
    ShowMessageBox(plan.refusal->toStdString(), {}, msgbox::kIconWarning);
    return;
  }
  const PastePlan::Cell* firstEdited = nullptr;
  for (const PastePlan::Cell& cell : plan.cells) {
    d_->model.SetTextUnformatted(cell.row, cell.column, d_->model.Edited(cell.column, cell.text));
    if (!firstEdited && KindOf(cell.column) != CellKind::kCheckBox) firstEdited = &cell;
  }
  for (const PastePlan::Cell& cell : plan.cells) {
    if (KindOf(cell.column) != CellKind::kCheckBox) continue;
    emit checkBoxToggled(cell.row, cell.column, cell.text == QLatin1String("true"));
  }
  if (firstEdited) emit cellEditEnded(firstEdited->row, firstEdited->column);
}

void CDynamicDataGrid::keyPressEvent(QKeyEvent* event) {
  const QModelIndex cell = currentIndex();
  const bool plain =
      event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
  if (cell.isValid() && plain) {
    const int key = event->key();
    const bool opens = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool lists = key == Qt::Key_F4 && KindOf(cell.column()) == CellKind::kDropDown;
    if ((opens || lists) && edit(cell, EditKeyPressed, event)) return event->accept();
    // As if typed over: the cell opens and loses its text.
    if (key == Qt::Key_Backspace && edit(cell, AnyKeyPressed, event)) return event->accept();
  }
  QTableView::keyPressEvent(event);
}

void CDynamicDataGrid::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  const QModelIndex cell = indexAt(place);
  QTableView::mouseReleaseEvent(event);
  d_->delegate.ReleaseButton();
  viewport()->update();

  const QModelIndex now = indexAt(place);
  const bool opens = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
                     now.isValid() && now == cell && now == currentIndex() &&
                     KindOf(now.column()) == CellKind::kDropDown &&
                     now.flags().testFlag(Qt::ItemIsEditable) &&
                     DataGridDelegate::ArrowRect(visualRect(now)).contains(place);
  if (opens && state() != EditingState) edit(now);
}

void CDynamicDataGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  d_->columnFit.Fit();
}

void CDynamicDataGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  // Qt sends some of these before the constructor has come this far.
  if (!d_) return;
  if (event->type() == QEvent::EnabledChange) d_->UpdateActions();
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    d_->UpdateRowHeight();
    d_->columnFit.Fit();
  }
}

void CDynamicDataGrid::Private::UpdateRowHeight() {
  grid.verticalHeader()->setDefaultSectionSize(grid.fontMetrics().height() + 8);
}

bool CDynamicDataGrid::focusNextPrevChild(bool next) {
  // Tab walks the cells and leaves the table at its ends, so that the focus is never caught.
  const QModelIndex cell = currentIndex();
  const bool atEnd = next ? cell.row() == RowCount() - 1 && cell.column() == ColumnCount() - 1
                          : cell.row() == 0 && cell.column() == 0;
  if (!cell.isValid() || atEnd) return QAbstractScrollArea::focusNextPrevChild(next);
  return QTableView::focusNextPrevChild(next);
}

void CDynamicDataGrid::selectionChanged(const QItemSelection& selected,
                                        const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  if (d_->quiet) return;
  d_->UpdateActions();
  emit rowSelectionChanged();
}

QRect CDynamicDataGrid::visualRect(const QModelIndex& index) const {
  return d_->placesUnknown ? QRect() : QTableView::visualRect(index);
}

QRegion CDynamicDataGrid::visualRegionForSelection(const QItemSelection& selection) const {
  return d_->placesUnknown ? QRegion() : QTableView::visualRegionForSelection(selection);
}

void CDynamicDataGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  using Delegate = QAbstractItemDelegate;
  const bool reverts = hint == Delegate::RevertModelCache;
  QTableView::closeEditor(editor, reverts ? hint : Delegate::NoHint);
  // A refused text leaves the person at its cell.
  if (std::exchange(d_->editRefused, false)) return;
  if (hint == Delegate::EditNextItem) StepFrom(MoveNext);
  if (hint == Delegate::EditPreviousItem) StepFrom(MovePrevious);
  if (hint == Delegate::SubmitModelCache) StepFrom(MoveDown);
}

void CDynamicDataGrid::StepFrom(CursorAction step) {
  const QModelIndex cell = currentIndex();
  const QModelIndex to = moveCursor(step, Qt::NoModifier);
  // Next and previous start over at the other end; a person who edits stays.
  const bool wraps = (step == MoveNext && to < cell) || (step == MovePrevious && cell < to);
  if (!cell.isValid() || !to.isValid() || wraps) return;
  selectionModel()->setCurrentIndex(to, QItemSelectionModel::ClearAndSelect);
}

}  // namespace GUI
