// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/chart_theme.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace GUI {

namespace {

constexpr double kLeastContrast = 3.0;
constexpr double kContrastStep = 0.05;

constexpr std::array kLightHues{0x0072B2, 0xC94F00, 0x00805E, 0x9B4F96, 0x7A6000, 0x16727E};
constexpr std::array kDarkHues{0x56B4E9, 0xF5893E, 0x2FD3A2, 0xE394C4, 0xE8CE45, 0x8FDCE6};

/// Lengths of dashes and gaps in widths of the pen; none for a solid line.
const std::array<QList<qreal>, 6>& Dashes() {
  static const std::array<QList<qreal>, 6> dashes{
      {{}, {6, 3}, {1.5, 2.5}, {8, 3, 1.5, 3}, {12, 4}, {4, 2, 1.5, 2, 1.5, 2}}};
  return dashes;
}

template <class Array>
const auto& Cycled(const Array& array, int number) {
  return array[static_cast<std::size_t>(number) % array.size()];
}

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// How bright a person sees the color, 0 to 1.
double Luminance(const QColor& color) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, brighter] = std::minmax({Luminance(a), Luminance(b)});
  return (brighter + 0.05) / (darker + 0.05);
}

ChartTheme MakeTheme(const QColor& background, const QColor& ink, const QColor& frame) {
  return {background, ink, Mixed(background, ink, 0.18), frame, qGray(background.rgb()) < 128};
}

}  // namespace

ChartTheme ChartTheme::Of(const QPalette& palette) {
  return MakeTheme(palette.color(QPalette::Base), palette.color(QPalette::Text),
                   palette.color(QPalette::Highlight));
}

ChartTheme ChartTheme::Light() { return MakeTheme(Qt::white, Qt::black, Qt::black); }

QColor ChartTheme::SeriesColor(int series) const {
  return QColor::fromRgb(static_cast<QRgb>(Cycled(dark ? kDarkHues : kLightHues, series)));
}

QColor ChartTheme::Readable(const QColor& color) const {
  QColor readable = color;
  for (double share = kContrastStep; share < 1 && Contrast(readable, background) < kLeastContrast;
       share += kContrastStep) {
    readable = Mixed(color, ink, share);
  }
  return readable;
}

QPen ChartTheme::SeriesPen(int series) const {
  QPen pen(SeriesColor(series), 1.8);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::RoundJoin);
  const QList<qreal>& dash = Cycled(Dashes(), series);
  if (!dash.isEmpty()) pen.setDashPattern(dash);
  return pen;
}

QColor ChartTheme::BandColor(int band) const {
  QColor color = SeriesColor(band);
  color.setAlpha(dark ? 70 : 45);
  return color;
}

}  // namespace GUI
