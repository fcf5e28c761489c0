// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QColor>
#include <QPalette>
#include <QPen>

namespace GUI {

/// The colors of a chart, taken from a palette, light or dark.
struct ChartTheme {
  QColor background;
  QColor ink;
  QColor grid;
  QColor frame;
  bool dark = false;

  static ChartTheme Of(const QPalette& palette);
  /// For paper and pictures, whatever the screen shows.
  static ChartTheme Light();

  /// Told apart by people with any color vision, and each at least 3 : 1 against the background.
  [[nodiscard]] QColor SeriesColor(int series) const;
  /// A color of a series' own, brought towards the ink until it has that contrast too.
  [[nodiscard]] QColor Readable(const QColor& color) const;
  /// Color and dash; the first series is solid.
  [[nodiscard]] QPen SeriesPen(int series) const;
  [[nodiscard]] QColor BandColor(int band) const;
};

}  // namespace GUI
