// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/// A person's hands: events as the window system sends them, delivered to one widget. They work
/// off-screen, and in a window that the window system does not activate.
namespace automation {

/// Lets everything that is queued happen, repaints included.
void Settle();

/// Moves the keyboard focus to the widget; the widget that had it loses it.
void GiveFocus(QWidget& widget, Qt::FocusReason reason);
/// Takes the keyboard focus away from the widget, as going on to another one does.
void TakeFocus(QWidget& widget);

/// One key, pressed and released. A widget that dies of it is left alone.
void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
              const QString& text = {});
/// The key that enters this character: "\n" is Return, "\t" Tab, "\b" Backspace, "\x7f" Delete and
/// "\x1b" Escape.
void PressCharacter(QWidget& widget, char32_t character);
/// Selects all of a field's text.
void SelectAllText(QWidget& widget);

/// The left button, pressed and released at a place of the widget.
void ClickAt(QWidget& widget, QPoint place);

}  // namespace automation
