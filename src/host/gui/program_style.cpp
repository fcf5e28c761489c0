// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/program_style.h"

#include <QApplication>
#include <QStyleOption>

namespace Framework {

namespace {

constexpr int kToolTipRestMs = 1000;
/// How far lines and frames on dark ground are brought from it towards the text.
constexpr double kLineShare = 0.2;
constexpr double kFrameShare = 0.6;
constexpr int kHintAlpha = 128;

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QColor OnGround(const QPalette& palette, double share) {
  const QColor ground = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
  const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
  return {mix(ground.red(), text.red()), mix(ground.green(), text.green()),
          mix(ground.blue(), text.blue())};
}

bool IsBox(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
}

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* result) const {
  // Qt takes the delay before a tool tip from the style alone.
  if (hint == SH_ToolTip_WakeUpDelay) return kToolTipRestMs;
  if (hint == SH_Table_GridLineColor && option && IsDark(option->palette))
    return static_cast<int>(OnGround(option->palette, kLineShare).rgba());
  return QProxyStyle::styleHint(hint, option, widget, result);
}

// Fusion draws the frame in a darker window color.
void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (!box || !IsBox(element) || !IsDark(box->palette))
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  QStyleOptionButton framed(*box);
  framed.palette.setColor(QPalette::Window, OnGround(box->palette, kFrameShare));
  QProxyStyle::drawPrimitive(element, &framed, painter, widget);
}

// A desktop that names no color for hints would leave the one of a light palette.
void ProgramStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    QColor hint = palette.color(group, QPalette::Text);
    hint.setAlpha(kHintAlpha);
    palette.setColor(group, QPalette::PlaceholderText, hint);
  }
}

void InstallProgramStyle(QApplication& application) { application.setStyle(new ProgramStyle); }

}  // namespace Framework
