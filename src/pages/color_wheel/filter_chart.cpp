// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/filter_chart.h"

#include "host/calc/color_code.h"
#include "host/data/color_wheel_data.h"
#include "pages/color_wheel/rules/filter_curve.h"
#include "pages/color_wheel/rules/segment_rows.h"
#include "widgets/line_chart.h"
#include "widgets/wheel_colors.h"

namespace color_wheel {

namespace {

using GUI::LineChart;

/// A legend of more entries would leave no room for the curves.
constexpr int kMostLegendEntries = 8;

/// Named as the segment's row is headed, and drawn in its color.
void DrawFilter(LineChart& chart, const ColorWheelData& wheel, std::size_t segment) {
  QList<QPointF> points;
  for (const spectral_curve::Point& point : FilterCurve(FilterOf(wheel, segment))) {
    points << QPointF(point.wavelength, point.value);
  }
  const int color = wheel.Segments[segment].Color;
  const std::string name(color_code::Name(color));
  chart.AddSeries(QStringLiteral("%1 %2").arg(segment).arg(QString::fromStdString(name)), points,
                  LineChart::Style::kLine, GUI::WheelColor(color));
}

}  // namespace

void SetUpFilterChart(LineChart& chart) {
  chart.SetAxisTitle(LineChart::Axis::kX, QStringLiteral("Wavelength (nm)"));
  chart.SetAxisTitle(LineChart::Axis::kY, QStringLiteral("Transmission"));
  chart.SetHomeRange(LineChart::Axis::kX, LineChart::Range{300, 850});
  chart.SetHomeRange(LineChart::Axis::kY, LineChart::Range{0, 1.05});
}

void DrawFilters(LineChart& chart, const ColorWheelData& wheel,
                 const std::set<std::size_t>& segments) {
  chart.Clear();
  for (std::size_t i = 0; i < wheel.Segments.size(); ++i) {
    if (segments.empty() || segments.contains(i)) DrawFilter(chart, wheel, i);
  }
  chart.SetLegendVisible(chart.SeriesCount() <= kMostLegendEntries);
  chart.ShowAll();
}

}  // namespace color_wheel
