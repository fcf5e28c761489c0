// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/input.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace automation {
namespace {

/// The widget that holds the focus in a window that is not active, where Qt itself sends no focus
/// events.
QPointer<QWidget>& FocusedByHand() {
  static QPointer<QWidget> widget;
  return widget;
}

void SendFocus(QWidget& widget, QEvent::Type type, Qt::FocusReason reason) {
  QFocusEvent event(type, reason);
  QCoreApplication::sendEvent(&widget, &event);
}

void EndFocusByHand(Qt::FocusReason reason) {
  const QPointer<QWidget> widget = FocusedByHand();
  FocusedByHand() = nullptr;
  if (widget) SendFocus(*widget, QEvent::FocusOut, reason);
}

void SendMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButtons held) {
  QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held, {});
  QCoreApplication::sendEvent(&widget, &event);
}

Qt::Key KeyOf(char32_t character) {
  switch (character) {
    case '\n':
      return Qt::Key_Return;
    case '\t':
      return Qt::Key_Tab;
    case '\b':
      return Qt::Key_Backspace;
    case 0x7f:
      return Qt::Key_Delete;
    case 0x1b:
      return Qt::Key_Escape;
    default:
      // Printable ASCII keys carry the code of their upper-case character.
      return character >= 0x20 && character < 0x7f ? static_cast<Qt::Key>(QChar::toUpper(character))
                                                   : Qt::Key_unknown;
  }
}

}  // namespace

void Settle() { QCoreApplication::processEvents(); }

void GiveFocus(QWidget& widget, Qt::FocusReason reason) {
  const QPointer<QWidget> target = widget.focusProxy() ? widget.focusProxy() : &widget;
  if (target->hasFocus() || FocusedByHand() == target) return;
  if (!target->window()->isActiveWindow()) {
    target->window()->activateWindow();
    Settle();
    if (!target) return;
  }
  EndFocusByHand(reason);
  if (target) target->setFocus(reason);
  // In an active window a field that refused its text may have taken the focus back.
  if (!target || target->hasFocus() || target->window()->isActiveWindow()) return;
  FocusedByHand() = target;
  SendFocus(*target, QEvent::FocusIn, reason);
}

void TakeFocus(QWidget& widget) {
  const QPointer<QWidget> target = widget.focusProxy() ? widget.focusProxy() : &widget;
  if (FocusedByHand() == target) {
    EndFocusByHand(Qt::TabFocusReason);
  } else if (target->hasFocus()) {
    target->clearFocus();
  }
  Settle();
}

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const QPointer<QWidget> target = &widget;
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, text);
    if (target) QCoreApplication::sendEvent(target, &event);
  }
}

void PressCharacter(QWidget& widget, char32_t character) {
  const Qt::Key key = KeyOf(character);
  const bool shifted = character >= 'A' && character <= 'Z';
  const QString text = key == Qt::Key_Return ? "\r" : QString::fromUcs4(&character, 1);
  PressKey(widget, key, shifted ? Qt::ShiftModifier : Qt::NoModifier, text);
}

void SelectAllText(QWidget& widget) {
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) return line->selectAll();
  if (auto* text = qobject_cast<QPlainTextEdit*>(&widget)) return text->selectAll();
  if (auto* rich = qobject_cast<QTextEdit*>(&widget)) return rich->selectAll();
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    if (combo->lineEdit() != nullptr) combo->lineEdit()->selectAll();
    return;
  }
  PressKey(widget, Qt::Key_A, Qt::ControlModifier);
}

void ClickAt(QWidget& widget, QPoint place) {
  const QPointer<QWidget> target = &widget;
  SendMouse(*target, QEvent::MouseButtonPress, place, Qt::LeftButton);
  if (target) SendMouse(*target, QEvent::MouseButtonRelease, place, Qt::NoButton);
}

}  // namespace automation
