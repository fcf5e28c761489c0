// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <functional>

namespace GUI {

/// Calls the function whenever the focus leaves the field, whether its text was edited or not. A
/// menu or list of the field's own takes the focus only for as long as it is open and does not
/// count.
void WhenLeft(QWidget& field, std::function<void()> then);

/// The same only where another control of the window takes the focus: not when the window is left
/// or closed, so that no question is asked then, and not for a message box of the field's own.
void WhenLeftForAnother(QWidget& field, std::function<void()> then);

}  // namespace GUI
