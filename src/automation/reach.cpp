// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/reach.h"

#include <QApplication>
#include <QWidget>

#include "automation/automation_error.h"

namespace automation {

void RequireReach(const QWidget& widget, const QString& name) {
  if (!widget.isVisible()) throw AutomationError(QStringLiteral("\"%1\" is hidden").arg(name));
  if (!widget.isEnabled()) throw AutomationError(QStringLiteral("\"%1\" is disabled").arg(name));
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || modal == widget.window() || modal->isAncestorOf(widget.window())) return;
  throw AutomationError(
      QStringLiteral("\"%1\" is behind the dialog \"%2\"").arg(name, modal->windowTitle()));
}

}  // namespace automation
