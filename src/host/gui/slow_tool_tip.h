// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

class QString;
class QWidget;

namespace Framework {

/// Gives a control a tool tip that stays for 5000 ms. How long the pointer rests before is the
/// program's style.
void SetSlowToolTip(QWidget& control, const QString& text);

}  // namespace Framework
