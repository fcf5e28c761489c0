// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/program_style.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <cstdlib>

namespace {

/// What a dark desktop gives that names no color for hints.
QPalette Dark() {
  QPalette palette(QColor(60, 60, 60), QColor(53, 53, 53));
  palette.setColor(QPalette::Base, QColor(42, 42, 42));
  for (const auto role : {QPalette::Text, QPalette::WindowText})
    palette.setColor(role, QColor(230, 230, 230));
  palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  return palette;
}

/// How far the farthest pixel of an empty box is from the ground that it stands on, in gray levels.
int Contrast(const QStyle& style, QStyle::PrimitiveElement box, const QPalette& palette) {
  QImage image(20, 20, QImage::Format_RGB32);
  const QColor ground = palette.color(QPalette::Base);
  image.fill(ground);
  QStyleOptionButton option;
  option.rect = QRect(3, 3, 14, 14);
  option.palette = palette;
  option.state = QStyle::State_Enabled | QStyle::State_Off;
  QPainter painter(&image);
  style.drawPrimitive(box, &option, &painter);
  painter.end();
  int farthest = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      farthest = std::max(farthest, std::abs(qGray(image.pixel(x, y)) - qGray(ground.rgb())));
  return farthest;
}

TEST(ProgramStyle, ADarkDesktopHidesNothing) {
  Framework::ProgramStyle style;
  QPalette light(Qt::lightGray), dark = Dark();
  light.setColor(QPalette::Base, Qt::white);
  for (QPalette* palette : {&light, &dark}) {
    SCOPED_TRACE(palette == &dark ? "dark" : "light");
    style.polish(*palette);
    const int ground = qGray(palette->color(QPalette::Base).rgb());
    for (const auto box : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton})
      EXPECT_GT(Contrast(style, box, *palette), 45) << box;
    QStyleOptionViewItem table;
    table.palette = *palette;
    const auto line = static_cast<QRgb>(
        style.styleHint(QStyle::SH_Table_GridLineColor, &table, nullptr, nullptr));
    EXPECT_GT(std::abs(qGray(line) - ground), 25);
    EXPECT_EQ(palette->color(QPalette::PlaceholderText).rgb(),
              palette->color(QPalette::Text).rgb());
  }
}

}  // namespace
