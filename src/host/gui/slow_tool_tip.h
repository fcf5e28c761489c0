// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

class QApplication;
class QString;
class QWidget;

namespace Framework {

/// Gives a control a tool tip that stays for 5000 ms.
void SetSlowToolTip(QWidget& control, const QString& text);

/// Sets the program's style, in which a tool tip shows after the pointer rested for 1000 ms.
void InstallToolTipDelay(QApplication& application);

}  // namespace Framework
