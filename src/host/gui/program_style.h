// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QProxyStyle>

class QApplication;

namespace Framework {

/// The program's look: Fusion, in which a tool tip shows after the pointer rested for 1000 ms, and
/// in which a dark desktop hides nothing: boxes, grid lines and the hints of empty fields keep a
/// color apart from the ground.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
};

void InstallProgramStyle(QApplication& application);

}  // namespace Framework
