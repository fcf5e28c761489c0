// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/formatted_edit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

#include "widgets/rules/number_keys.h"

namespace GUI {

CFormattedEdit::CFormattedEdit(QWidget* parent) : CFormattedEdit('f', parent) {}

CFormattedEdit::CFormattedEdit(char conversion, QWidget* parent)
    : QLineEdit(parent), conversion_(conversion) {}

void CFormattedEdit::keyPressEvent(QKeyEvent* event) {
  if (RunEditCommand(*event)) return event->accept();
  const QString typed = event->text();
  // Keys without a printable character move the caret, delete and select: no text to judge.
  if (!typed.isEmpty() && typed.front().isPrint() && !Accepts(typed.front())) {
    return event->accept();
  }
  QLineEdit::keyPressEvent(event);
}

bool CFormattedEdit::RunEditCommand(const QKeyEvent& event) {
  if (event.modifiers() != Qt::ControlModifier) return false;
  if (event.key() == Qt::Key_C) {
    copy();
    return true;
  }
  if (isReadOnly()) return false;
  switch (event.key()) {
    case Qt::Key_V:
      paste();
      return true;
    case Qt::Key_X:
      cut();
      return true;
    case Qt::Key_Z:
      undo();
      return true;
    default:
      return false;
  }
}

void CFormattedEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QString committed = event->commitString();
  if (!std::ranges::all_of(committed, [this](QChar c) { return Accepts(c); })) {
    return event->accept();
  }
  QLineEdit::inputMethodEvent(event);
}

bool CFormattedEdit::Accepts(QChar character) const {
  const QString shown = text();
  const NumberEntryState entry{
      {reinterpret_cast<const char16_t*>(shown.utf16()), static_cast<std::size_t>(shown.size())},
      cursorPosition(),
      hasSelectedText()};
  return AcceptsNumberKey(conversion_, character.unicode(), entry);
}

}  // namespace GUI
