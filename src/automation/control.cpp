// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/control.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <utility>

#include "automation/automation_error.h"
#include "automation/input.h"
#include "automation/reach.h"
#include "automation/shown_text.h"

namespace automation {
namespace {

/// The model behind a control's list of entries; null when it has none.
struct EntryList {
  QAbstractItemModel* model = nullptr;
  int column = 0;
  QModelIndex root;

  [[nodiscard]] QModelIndex At(int row) const { return model->index(row, column, root); }
};

EntryList EntriesOf(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
    return {combo->model(), combo->modelColumn(), combo->rootModelIndex()};
  if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
    return {view->model(), 0, view->rootIndex()};
  return {};
}

EntryList RequireEntries(const Control& control) {
  const EntryList entries = EntriesOf(control.Widget());
  if (entries.model != nullptr) return entries;
  throw AutomationError(QStringLiteral("\"%1\" has no list to choose from").arg(control.Name()));
}

int RequireEntry(const Control& control, const EntryList& entries, const QString& text) {
  const int row = static_cast<int>(control.Items().indexOf(text));
  if (row < 0) {
    throw AutomationError(QStringLiteral("\"%1\" has no item \"%2\"; it has: %3")
                              .arg(control.Name(), text, control.Items().join(", ")));
  }
  if (entries.At(row).flags().testFlag(Qt::ItemIsEnabled)) return row;
  throw AutomationError(
      QStringLiteral("the item \"%2\" of \"%1\" is disabled").arg(control.Name(), text));
}

/// What the open list does when one of its entries is clicked: choosing the current one again is
/// told, too.
void ActivateEntry(QComboBox& combo, int row) {
  const QPointer<QComboBox> alive = &combo;
  combo.setCurrentIndex(row);
  if (alive) emit combo.activated(row);
  if (alive) emit combo.textActivated(combo.itemText(row));
}

void FocusByClick(QWidget& widget) {
  if ((widget.focusPolicy() & Qt::ClickFocus) != 0) GiveFocus(widget, Qt::MouseFocusReason);
}

}  // namespace

Control::Control(QWidget& widget, QString name) : widget_(&widget), name_(std::move(name)) {}

QWidget& Control::Widget() const {
  if (widget_) return *widget_;
  throw AutomationError(QStringLiteral("\"%1\" is no longer there").arg(name_));
}

QWidget& Control::Reachable() const {
  RequireReach(Widget(), name_);
  return *widget_;
}

QString Control::Text() const { return ShownText(Widget()); }

void Control::SetText(const QString& text) {
  const auto* combo = qobject_cast<QComboBox*>(&Reachable());
  if (combo != nullptr && !combo->isEditable()) {
    Choose(text);
  } else {
    GiveFocus(Reachable(), Qt::TabFocusReason);
    SelectAllText(Reachable());
    Type(text.isEmpty() ? QStringLiteral("\x7f") : text);
  }
  if (widget_) Leave();
}

void Control::Type(const QString& keys) {
  // A field that is reached by Tab selects its text, which the first key would then replace.
  GiveFocus(Reachable(), Qt::OtherFocusReason);
  for (const char32_t character : keys.toStdU32String()) PressCharacter(Reachable(), character);
  Settle();
}

void Control::Leave() { TakeFocus(Widget()); }

QStringList Control::Items() const {
  const EntryList entries = RequireEntries(*this);
  QStringList texts;
  const int rows = entries.model->rowCount(entries.root);
  for (int row = 0; row < rows; ++row) texts.append(entries.At(row).data().toString());
  return texts;
}

int Control::Index() const {
  RequireEntries(*this);
  if (const auto* combo = qobject_cast<const QComboBox*>(widget_.data()))
    return combo->currentIndex();
  return qobject_cast<const QAbstractItemView*>(widget_.data())->currentIndex().row();
}

void Control::Choose(const QString& text) {
  QWidget& widget = Reachable();
  const EntryList entries = RequireEntries(*this);
  const int row = RequireEntry(*this, entries, text);
  FocusByClick(widget);
  if (auto* combo = qobject_cast<QComboBox*>(&Reachable())) {
    ActivateEntry(*combo, row);
  } else {
    auto& view = *qobject_cast<QAbstractItemView*>(&widget);
    view.scrollTo(entries.At(row));
    ClickAt(*view.viewport(), view.visualRect(entries.At(row)).center());
  }
  Settle();
}

bool Control::Checked() const {
  QWidget& widget = Widget();
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (button != nullptr && button->isCheckable()) return button->isChecked();
  const auto* group = qobject_cast<const QGroupBox*>(&widget);
  if (group != nullptr && group->isCheckable()) return group->isChecked();
  throw AutomationError(QStringLiteral("\"%1\" cannot be checked").arg(name_));
}

void Control::SetChecked(bool checked) {
  if (Checked() != checked) Click();
}

void Control::Click() {
  FocusByClick(Reachable());
  QWidget& widget = Reachable();
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->click();
  } else if (const auto* group = qobject_cast<QGroupBox*>(&widget); group && group->isCheckable()) {
    PressKey(widget, Qt::Key_Space);
  } else {
    ClickAt(widget, widget.rect().center());
  }
  Settle();
}

}  // namespace automation
