// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/chart_plot_private.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace GUI {

namespace {

/// Markers along a line: enough to tell series apart, few enough to see the line. Few points are
/// places of their own, such as the ends of steps, and each has its marker.
constexpr int kMarkersPerSeries = 16;
constexpr int kMarkedOneByOne = 48;
constexpr int kMostLegendColumns = 5;
/// How much of the chart's height the legend may take.
constexpr double kMostLegendShare = 0.35;
constexpr int kMostTicks = 5;

constexpr std::array kMarkers{QCPScatterStyle::ssDisc,     QCPScatterStyle::ssSquare,
                              QCPScatterStyle::ssTriangle, QCPScatterStyle::ssDiamond,
                              QCPScatterStyle::ssCross,    QCPScatterStyle::ssTriangleInverted};

}  // namespace

ChartPlot::Private::Private(ChartPlot& chart) : owner(chart), plot(new ReplottingPlot(&chart)) {
  plot->setFocusPolicy(Qt::NoFocus);
  plot->setMouseTracking(true);
  plot->setInteractions(QCP::iRangeDrag);
  plot->setAutoAddPlottableToLegend(false);
  // Without a size there is nothing to draw on.
  plot->setMinimumSize(50, 50);
  plot->legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
  QObject::connect(plot, &QCustomPlot::beforeReplot, &chart, [this] {
    // Once for all series that came since.
    if (std::exchange(legendStale, false)) FillLegend();
    FitLegend();
    FitTicks();
  });
  plot->legend->setBorderPen(Qt::NoPen);
  tracer = new QCPItemTracer(plot);
  tracer->setStyle(QCPItemTracer::tsCircle);
  tracer->setSize(9);
  tracer->setVisible(false);
  readOut = new QCPItemText(plot);
  readOut->setPadding({6, 4, 6, 4});
  readOut->setTextAlignment(Qt::AlignLeft);
  readOut->setLayer(QStringLiteral("overlay"));
  readOut->position->setType(QCPItemPosition::ptAbsolute);
  readOut->position->setParentAnchor(tracer->position);
  readOut->setVisible(false);
}

QCPGraph* ChartPlot::Private::MakeGraph(const QList<QPointF>& points) {
  auto* graph = new QCPGraph(plot->xAxis, plot->yAxis);
  QList<QPointF> sorted = points;
  // Stable: the points of a vertical edge keep their order.
  std::ranges::stable_sort(sorted, {}, &QPointF::x);
  QVector<double> keys, values;
  for (const QPointF& point : sorted) {
    keys << point.x();
    values << point.y();
  }
  graph->setData(keys, values, true);
  return graph;
}

ChartPlot::Private::Drawn ChartPlot::Private::Draw(const ChartSeries& s) {
  Drawn drawn;
  if (s.style == LineChart::Style::kBars) {
    auto* bars = new QCPBars(plot->xAxis, plot->yAxis);
    for (const QPointF& point : s.points) bars->addData(point.x(), point.y());
    bars->setWidth(BarWidth(s.points));
    drawn = {bars, true, s.color};
  } else {
    QCPGraph* graph = MakeGraph(s.points);
    const bool steps = s.style == LineChart::Style::kSteps;
    graph->setLineStyle(steps ? QCPGraph::lsStepLeft : QCPGraph::lsLine);
    const auto points = static_cast<int>(s.points.size());
    graph->setScatterSkip(points > kMarkedOneByOne ? points / kMarkersPerSeries : 0);
    drawn = {graph, false, s.color};
  }
  drawn.plottable->setName(s.name);
  return drawn;
}

QCPItemText* ChartPlot::Private::MakeText(const QString& text, Qt::Alignment alignment) {
  auto* item = new QCPItemText(plot);
  item->setText(text);
  item->setPositionAlignment(alignment);
  item->setPadding({3, 1, 3, 1});
  texts.push_back(item);
  return item;
}

void ChartPlot::Private::FillLegend() {
  plot->legend->clearItems();
  const auto add = [](QCPAbstractPlottable* plottable) {
    if (!plottable->name().isEmpty()) plottable->addToLegend();
  };
  for (const Drawn& drawn : series) add(drawn.plottable);
  for (const Area& area : areas) add(area.upper);
}

/// As many columns as have room for the widest entry; no legend that leaves too little of the plot.
void ChartPlot::Private::FitLegend() {
  QCPLegend& entries = *plot->legend;
  QSize largest(1, 1);
  int count = 0;
  for (int i = 0; i < entries.itemCount(); ++i) {
    // The last row may have empty places.
    const QCPAbstractLegendItem* item = entries.item(i);
    if (!item) continue;
    largest = largest.expandedTo(item->minimumOuterSizeHint());
    ++count;
  }
  const QMargins margins = entries.margins();
  const int room = plot->width() - margins.left() - margins.right() + entries.columnSpacing();
  const int columns =
      std::clamp(room / (largest.width() + entries.columnSpacing()), 1, kMostLegendColumns);
  if (columns != entries.wrap()) {
    entries.setWrap(columns);
    entries.setFillOrder(QCPLayoutGrid::foColumnsFirst, true);
  }
  const int rows = (count + columns - 1) / columns;
  const int height = rows * (largest.height() + entries.rowSpacing());
  PlaceLegend(legend && count > 0 && height <= plot->height() * kMostLegendShare);
}

/// As many ticks as have room for their texts.
void ChartPlot::Private::FitTicks() const {
  const auto fit = [](const QCPAxis& axis, int room) {
    axis.ticker()->setTickCount(std::clamp(room, 2, kMostTicks));
  };
  const QFontMetrics metrics(plot->xAxis->tickLabelFont());
  fit(*plot->xAxis, plot->width() / metrics.horizontalAdvance(QStringLiteral("0000000")));
  fit(*plot->yAxis, plot->height() / (3 * metrics.height()));
}

/// The legend stands below the axes, where it hides nothing; one that is not shown takes no room.
void ChartPlot::Private::PlaceLegend(bool below) {
  if (below == legendBelow) return;
  legendBelow = below;
  plot->legend->setVisible(below);
  QCPLayoutGrid& rows = *plot->plotLayout();
  plot->legend->layout()->take(plot->legend);
  rows.simplify();
  if (!below) {
    plot->axisRect()->insetLayout()->addElement(plot->legend, Qt::AlignTop | Qt::AlignRight);
    return;
  }
  const int last = rows.rowCount();
  rows.addElement(last, 0, plot->legend);
  rows.setRowStretchFactor(last, 0.001);
}

void ChartPlot::Private::DressAxis(const ChartTheme& theme, const QFont& font,
                                   QCPAxis& axis) const {
  const QPen ink(theme.ink);
  axis.setBasePen(ink);
  axis.setTickPen(ink);
  axis.setSubTickPen(ink);
  axis.setLabelColor(theme.ink);
  axis.setTickLabelColor(theme.ink);
  axis.setLabelFont(font);
  axis.setTickLabelFont(font);
  axis.grid()->setPen(QPen(theme.grid));
  axis.grid()->setZeroLinePen(QPen(theme.grid, 1.5));
}

void ChartPlot::Private::DressSeries(const ChartTheme& theme, int number) const {
  const Drawn& drawn = series[static_cast<std::size_t>(number)];
  const QColor color =
      drawn.color.isValid() ? theme.Readable(drawn.color) : theme.SeriesColor(number);
  QPen pen = theme.SeriesPen(number);
  pen.setColor(color);
  drawn.plottable->setPen(pen);
  if (drawn.isBars) drawn.plottable->setBrush(theme.BandColor(number));
  auto* graph = qobject_cast<QCPGraph*>(drawn.plottable);
  if (!graph) return;
  const auto shape = kMarkers[static_cast<std::size_t>(number) % kMarkers.size()];
  graph->setScatterStyle(QCPScatterStyle(shape, QPen(color, 1.2), color, 5.5));
}

void ChartPlot::Private::DressCursor(const ChartTheme& theme, const QFont& font) const {
  tracer->setPen(QPen(theme.ink, 1.5));
  readOut->setColor(theme.ink);
  readOut->setFont(font);
  readOut->setBrush(theme.background);
  readOut->setPen(QPen(theme.ink));
}

}  // namespace GUI
