// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/slow_tool_tip.h"

#include <QWidget>

namespace Framework {

namespace {

constexpr int kStayMs = 5000;

}  // namespace

void SetSlowToolTip(QWidget& control, const QString& text) {
  control.setToolTip(text);
  control.setToolTipDuration(kStayMs);
}

}  // namespace Framework
