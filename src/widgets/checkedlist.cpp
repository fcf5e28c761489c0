// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/checkedlist.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace {

const QString& CheckText(bool checked) {
  static const QString yes = QStringLiteral("Yes"), no = QStringLiteral("No");
  return checked ? yes : no;
}

int ItemHeight(const QWidget& list) { return list.fontMetrics().height() + 8; }

}  // namespace

checkedlist::checkedlist(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(2);
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setEditTriggers(NoEditTriggers);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  connect(this, &QTreeWidget::itemChanged, this, &checkedlist::TakeCheck);
}

QTreeWidgetItem& checkedlist::Item(int item) {
  while (topLevelItemCount() <= item) {
    auto* made = new QTreeWidgetItem(this, {QString(), CheckText(false)});
    made->setCheckState(0, Qt::Unchecked);
    made->setSizeHint(0, {0, ItemHeight(*this)});
  }
  return *topLevelItem(item);
}

void checkedlist::SetItemText(int item, const QString& text) { SetItemText(item, 0, text); }

void checkedlist::SetItemText(int item, int column, const QString& text) {
  const QSignalBlocker quiet(this);
  QTreeWidgetItem& changed = Item(item);
  changed.setText(column, text);
  if (column == 1) changed.setCheckState(0, text == CheckText(true) ? Qt::Checked : Qt::Unchecked);
}

QString checkedlist::ItemText(int item, int column) const {
  const QTreeWidgetItem* found = topLevelItem(item);
  return found ? found->text(column) : QString();
}

void checkedlist::EnableItem(int item, bool enabled) {
  const QSignalBlocker quiet(this);
  Item(item).setDisabled(!enabled);
}

bool checkedlist::ItemEnabled(int item) const {
  const QTreeWidgetItem* found = topLevelItem(item);
  return found && !found->isDisabled();
}

QSize checkedlist::sizeHint() const {
  return {QTreeWidget::sizeHint().width(), 5 * ItemHeight(*this) + 2 * frameWidth()};
}

void checkedlist::keyPressEvent(QKeyEvent* event) {
  // The box is in column 0, whatever column the mouse made current.
  if (event->key() == Qt::Key_Space && currentItem()) setCurrentItem(currentItem(), 0);
  QTreeWidget::keyPressEvent(event);
}

void checkedlist::TakeCheck(QTreeWidgetItem* item, int column) {
  if (column != 0) return;
  const bool checked = item->checkState(0) == Qt::Checked;
  if (item->text(1) == CheckText(checked)) return;
  {
    const QSignalBlocker quiet(this);
    item->setText(1, CheckText(checked));
  }
  emit checkChanged(indexOfTopLevelItem(item));
}
