// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

class QWidget;

namespace GUI {

/// The mouse wheel turns the control only while it has the focus, and does not give it the focus.
void TurnOnlyWithFocus(QWidget& control);

}  // namespace GUI
