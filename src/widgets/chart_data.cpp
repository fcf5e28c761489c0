// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/chart_data.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "widgets/rules/chart_range.h"

namespace GUI {

bool ChartData::Holds(LineChart::Place place) const {
  return place.series >= 0 && place.series < static_cast<int>(series.size()) && place.index >= 0 &&
         place.index < series[static_cast<std::size_t>(place.series)].points.size();
}

QPointF ChartData::At(LineChart::Place place) const {
  if (!Holds(place)) throw std::out_of_range("no such point");
  return series[static_cast<std::size_t>(place.series)].points[place.index];
}

LineChart::Place ChartData::First() const {
  const auto found =
      std::ranges::find_if(series, [](const ChartSeries& s) { return !s.points.isEmpty(); });
  if (found == series.end()) return {};
  return {static_cast<int>(found - series.begin()), 0};
}

LineChart::Place ChartData::Along(LineChart::Place place, int step) const {
  LineChart::Place next{place.series, place.index + step};
  while (Holds(next) && std::isnan(At(next).y())) next.index += step;
  return Holds(next) ? next : place;
}

LineChart::Place ChartData::Across(LineChart::Place place, int step) const {
  const double x = At(place).x();
  for (int s = place.series + step; s >= 0 && s < static_cast<int>(series.size()); s += step) {
    const QList<QPointF>& points = series[static_cast<std::size_t>(s)].points;
    const auto distance = [x](const QPointF& point) { return std::abs(point.x() - x); };
    const auto nearest = std::ranges::min_element(points, {}, distance);
    if (nearest != points.end()) return {s, static_cast<int>(nearest - points.begin())};
  }
  return place;
}

LineChart::Range ChartData::FittingRange(LineChart::Axis axis, LineChart::Scale scale) const {
  const bool isX = axis == LineChart::Axis::kX;
  ChartRangeFit fit(scale == LineChart::Scale::kLogarithmic);
  const auto add = [&fit, isX](const QPointF& point) { fit.Add(isX ? point.x() : point.y()); };
  std::ranges::for_each(others, add);
  for (const ChartSeries& s : series) {
    std::ranges::for_each(s.points, add);
    if (s.style != LineChart::Style::kBars) continue;
    // Bars stand on 0 and are as wide to either side.
    const double half = BarWidth(s.points) / 2;
    for (const QPointF& point : s.points) {
      add({point.x() - half, 0.0});
      add({point.x() + half, 0.0});
    }
  }
  const ChartRange range = fit.Result(isX ? 0.02 : 0.08);
  return {range.lower, range.upper};
}

double BarWidth(const QList<QPointF>& points) {
  double narrowest = 0.0;
  for (qsizetype i = 1; i < points.size(); ++i) {
    const double gap = std::abs(points[i].x() - points[i - 1].x());
    if (gap > 0.0 && (narrowest == 0.0 || gap < narrowest)) narrowest = gap;
  }
  return narrowest > 0.0 ? narrowest * 0.8 : 0.8;
}

}  // namespace GUI
