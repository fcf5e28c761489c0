// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/slow_tool_tip.h"

#include <QApplication>
#include <QProxyStyle>
#include <QWidget>

namespace Framework {

namespace {

constexpr int kRestMs = 1000;
constexpr int kStayMs = 5000;

/// Qt takes the delay before a tool tip from the style alone.
class SlowToolTipStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_ToolTip_WakeUpDelay) return kRestMs;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }
};

}  // namespace

void SetSlowToolTip(QWidget& control, const QString& text) {
  control.setToolTip(text);
  control.setToolTipDuration(kStayMs);
}

void InstallToolTipDelay(QApplication& application) {
  application.setStyle(new SlowToolTipStyle(QStringLiteral("Fusion")));
}

}  // namespace Framework
