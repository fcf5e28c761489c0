// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/grid_row_actions.h"

#include <QCoreApplication>
#include <QWidget>

#include "widgets/icons.h"

namespace GUI {

namespace {

struct Description {
  Image image;
  const char* text;
  const char* keys;
};

Description Describe(RowOperation operation) {
  switch (operation) {
    case RowOperation::kAdd:
      return {Image::kAddRow, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Add row"), "Ins"};
    case RowOperation::kCopy:
      return {Image::kCopyRows, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Copy rows"), "Ctrl+D"};
    case RowOperation::kDelete:
      return {Image::kDeleteRows, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Delete rows"), "Del"};
    case RowOperation::kMoveToTop:
      return {Image::kMoveToTop, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Move to top"),
              "Alt+Home"};
    case RowOperation::kMoveUp:
      return {Image::kMoveUp, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Move up"), "Alt+Up"};
    case RowOperation::kMoveDown:
      return {Image::kMoveDown, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Move down"), "Alt+Down"};
    case RowOperation::kMoveToBottom:
      return {Image::kMoveToBottom, QT_TRANSLATE_NOOP("GUI::GridRowActions", "Move to bottom"),
              "Alt+End"};
  }
  return {};
}

std::size_t Place(RowOperation operation) { return static_cast<std::size_t>(operation); }

}  // namespace

GridRowActions::GridRowActions(QWidget& owner, Run run) {
  for (const RowOperation operation : kRowOperations) {
    const Description description = Describe(operation);
    const QKeySequence keys(QLatin1String(description.keys));
    auto* action = new QAction(Icon(description.image), tr(description.text), this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(action->text(), keys.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, [run, operation] { run(operation); });
    entries_[Place(operation)].action = action;
    owner.addAction(action);
  }
}

QAction* GridRowActions::Action(RowOperation operation) const {
  return entries_[Place(operation)].action;
}

void GridRowActions::Offer(const QList<RowOperation>& operations) {
  for (const RowOperation operation : kRowOperations) {
    Entry& entry = entries_[Place(operation)];
    entry.offered = operations.contains(operation);
    entry.action->setVisible(entry.offered);
  }
}

void GridRowActions::SetEnabledByOwner(RowOperation operation, bool enabled) {
  entries_[Place(operation)].enabledByOwner = enabled;
}

bool GridRowActions::IsOpen(RowOperation operation) const {
  const Entry& entry = entries_[Place(operation)];
  return entry.offered && entry.enabledByOwner;
}

}  // namespace GUI
