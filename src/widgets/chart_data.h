// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>
#include <vector>

#include "widgets/line_chart.h"

namespace GUI {

struct ChartSeries {
  QString name;
  QList<QPointF> points;
  LineChart::Style style = LineChart::Style::kLine;
  QColor color = {};  ///< invalid: the theme's
};

/// The series of a chart and the places on them.
class ChartData {
 public:
  std::vector<ChartSeries> series;
  /// Points of areas: they count for what there is to show.
  QList<QPointF> others;

  [[nodiscard]] bool Holds(LineChart::Place place) const;
  /// Throws std::out_of_range where there is no such place.
  [[nodiscard]] QPointF At(LineChart::Place place) const;
  /// The first point of all.
  [[nodiscard]] LineChart::Place First() const;
  /// The next place along the series that has a value, or the place itself.
  [[nodiscard]] LineChart::Place Along(LineChart::Place place, int step) const;
  /// The place of nearest x on the next series that has points, or the place itself.
  [[nodiscard]] LineChart::Place Across(LineChart::Place place, int step) const;
  [[nodiscard]] LineChart::Range FittingRange(LineChart::Axis axis, LineChart::Scale scale) const;
};

/// Four fifths of the smallest distance between two neighbours.
[[nodiscard]] double BarWidth(const QList<QPointF>& points);

}  // namespace GUI
