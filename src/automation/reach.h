// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>

class QWidget;

namespace automation {

/// Throws AutomationError unless a person could click the widget or type into it: it is visible
/// and enabled, and no modal dialog stands before it. `name` is what the error calls it.
void RequireReach(const QWidget& widget, const QString& name);

}  // namespace automation
