// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/chart_plot.h"

#include <qcustomplot.h>

#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

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

/// A plot that is drawn anew when it is next painted after a change.
class Plot : public QCustomPlot {
 public:
  using QCustomPlot::QCustomPlot;

  void Touch() {
    stale_ = true;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (std::exchange(stale_, false)) replot(rpQueuedRefresh);
    QCustomPlot::paintEvent(event);
  }

 private:
  bool stale_ = true;
};

/// Makes a position lie at a value of one axis and at a share of the other's length.
void PlaceAcross(QCPItemPosition& position, LineChart::Axis axis, double value, double share) {
  const bool isX = axis == LineChart::Axis::kX;
  if (isX) position.setTypeY(QCPItemPosition::ptAxisRectRatio);
  if (!isX) position.setTypeX(QCPItemPosition::ptAxisRectRatio);
  position.setCoords(isX ? value : share, isX ? share : value);
}

/// Calls with the pixels of the axis' ends.
template <class F>
void WithEnds(const QCPAxis& axis, F f) {
  f(axis.coordToPixel(axis.range().lower), axis.coordToPixel(axis.range().upper));
}

}  // namespace

struct ChartPlot::Private {
  struct Drawn {
    QCPAbstractPlottable* plottable = nullptr;
    bool isBars = false;
    QColor color = {};
  };
  struct Area {
    QCPGraph* lower = nullptr;
    QCPGraph* upper = nullptr;
  };

  explicit Private(ChartPlot& owner);

  [[nodiscard]] QCPAxis& PlotAxis(Axis axis) const {
    return axis == Axis::kX ? *plot->xAxis : *plot->yAxis;
  }
  QCPGraph* MakeGraph(const QList<QPointF>& points);
  Drawn Draw(const ChartSeries& s);
  QCPItemText* MakeText(const QString& text, Qt::Alignment alignment);
  void FillLegend();
  void PlaceLegend(bool below);
  void FitLegend();
  void FitTicks() const;
  void DressAxis(const ChartTheme& theme, const QFont& font, QCPAxis& axis) const;
  void DressSeries(const ChartTheme& theme, int number) const;
  void DressCursor(const ChartTheme& theme, const QFont& font) const;

  ChartPlot& owner;
  Plot* plot = nullptr;
  QCPTextElement* title = nullptr;
  std::vector<Drawn> series;
  std::vector<Area> areas;
  std::vector<QCPItemRect*> bands;
  std::vector<QCPItemStraightLine*> markers;
  std::vector<QCPItemText*> texts;
  QCPItemTracer* tracer = nullptr;
  QCPItemText* readOut = nullptr;
  bool legend = true;
  bool legendStale = true;
  std::optional<bool> legendBelow;
  bool settingView = false;
};

ChartPlot::Private::Private(ChartPlot& chart) : owner(chart), plot(new Plot(&chart)) {
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

ChartPlot::ChartPlot(QWidget* parent) : QWidget(parent), d_(std::make_unique<Private>(*this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(d_->plot);
  Plot* plot = d_->plot;
  for (QCPAxis* axis : {plot->xAxis, plot->yAxis}) {
    connect(axis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this, [this] {
      if (!d_->settingView) emit viewDragged();
    });
  }
  connect(plot, &QCustomPlot::mousePress, this, [plot](const QMouseEvent* event) {
    const bool zooms = event->modifiers().testFlag(Qt::ShiftModifier);
    plot->setSelectionRectMode(zooms ? QCP::srmZoom : QCP::srmNone);
  });
  connect(plot, &QCustomPlot::mouseMove, this, [this](const QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) emit hovered(event->position());
  });
  connect(plot, &QCustomPlot::mouseRelease, this, [this, plot](const QMouseEvent* event) {
    const bool zooms = plot->selectionRectMode() != QCP::srmNone;
    if (event->button() == Qt::LeftButton && !zooms) emit clicked(event->position());
  });
  connect(plot, &QCustomPlot::mouseDoubleClick, this, &ChartPlot::doubleClicked);
}

ChartPlot::~ChartPlot() = default;

void ChartPlot::SetTitle(const QString& title) {
  if (!d_->title) {
    d_->title = new QCPTextElement(d_->plot, title, font());
    d_->plot->plotLayout()->insertRow(0);
    d_->plot->plotLayout()->addElement(0, 0, d_->title);
  }
  d_->title->setText(title);
  d_->title->setVisible(!title.isEmpty());
}

void ChartPlot::SetAxisTitle(Axis axis, const QString& title) {
  d_->PlotAxis(axis).setLabel(title);
}

void ChartPlot::SetScale(Axis axis, LineChart::Scale scale) {
  const bool logarithmic = scale == LineChart::Scale::kLogarithmic;
  QCPAxis& shown = d_->PlotAxis(axis);
  shown.setScaleType(logarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
  shown.setTicker(logarithmic ? QSharedPointer<QCPAxisTicker>(new QCPAxisTickerLog)
                              : QSharedPointer<QCPAxisTicker>(new QCPAxisTicker));
  shown.setNumberFormat(logarithmic ? QStringLiteral("eb") : QStringLiteral("gb"));
  shown.setNumberPrecision(logarithmic ? 0 : 6);
}

void ChartPlot::SetLegendVisible(bool visible) {
  d_->legend = visible;
  d_->legendStale = true;
}

void ChartPlot::SetWheelZooms(bool zooms) { d_->plot->setInteraction(QCP::iRangeZoom, zooms); }

ChartPlot::Range ChartPlot::View(Axis axis) const {
  const QCPRange range = d_->PlotAxis(axis).range();
  return {range.lower, range.upper};
}

void ChartPlot::SetView(Axis axis, Range range) {
  d_->settingView = true;
  d_->PlotAxis(axis).setRange(range.lower, range.upper);
  d_->settingView = false;
  d_->plot->Touch();
}

void ChartPlot::ZoomView(double factor) {
  // In pixels the middle is the middle on logarithmic axes too.
  for (QCPAxis* axis : {d_->plot->xAxis, d_->plot->yAxis}) {
    WithEnds(*axis, [&](double lower, double upper) {
      axis->scaleRange(factor, axis->pixelToCoord((lower + upper) / 2));
    });
  }
  d_->plot->Touch();
}

void ChartPlot::PanView(Axis axis, double share) {
  QCPAxis& moved = d_->PlotAxis(axis);
  WithEnds(moved, [&](double lower, double upper) {
    const double by = (upper - lower) * share;
    moved.setRange(moved.pixelToCoord(lower + by), moved.pixelToCoord(upper + by));
  });
  d_->plot->Touch();
}

void ChartPlot::Reveal(const QPointF& point) {
  const auto follow = [this](Axis axis, double value) {
    const QCPAxis& shown = d_->PlotAxis(axis);
    if (!std::isfinite(value) || shown.range().contains(value)) return;
    WithEnds(shown, [&](double lower, double upper) {
      PanView(axis, (shown.coordToPixel(value) - (lower + upper) / 2) / (upper - lower));
    });
  };
  follow(Axis::kX, point.x());
  follow(Axis::kY, point.y());
}

QPointF ChartPlot::Pixel(const QPointF& point) const {
  return {d_->plot->xAxis->coordToPixel(point.x()), d_->plot->yAxis->coordToPixel(point.y())};
}

void ChartPlot::AddSeries(const ChartSeries& series) {
  d_->series.push_back(d_->Draw(series));
  d_->legendStale = true;
}

void ChartPlot::ReplaceSeries(int number, const ChartSeries& series) {
  Private::Drawn& drawn = d_->series.at(static_cast<std::size_t>(number));
  d_->plot->removePlottable(drawn.plottable);
  drawn = d_->Draw(series);
  d_->legendStale = true;
}

void ChartPlot::AddArea(const QString& name, const QList<QPointF>& lower,
                        const QList<QPointF>& upper) {
  const Private::Area area{d_->MakeGraph(lower), d_->MakeGraph(upper)};
  area.upper->setName(name);
  area.upper->setChannelFillGraph(area.lower);
  d_->areas.push_back(area);
  d_->legendStale = true;
}

void ChartPlot::AddBand(Axis axis, Range range, const QString& name) {
  auto* band = new QCPItemRect(d_->plot);
  const bool isX = axis == Axis::kX;
  PlaceAcross(*band->topLeft, axis, isX ? range.lower : range.upper, 0.0);
  PlaceAcross(*band->bottomRight, axis, isX ? range.upper : range.lower, 1.0);
  band->setLayer(QStringLiteral("background"));
  d_->bands.push_back(band);
  if (name.isEmpty()) return;
  QCPItemText* text = d_->MakeText(name, Qt::AlignLeft | Qt::AlignTop);
  PlaceAcross(*text->position, axis, isX ? range.lower : range.upper, 0.0);
}

void ChartPlot::AddMarker(Axis axis, double value, const QString& label) {
  auto* line = new QCPItemStraightLine(d_->plot);
  PlaceAcross(*line->point1, axis, value, 0.0);
  PlaceAcross(*line->point2, axis, value, 1.0);
  d_->markers.push_back(line);
  if (label.isEmpty()) return;
  const bool isX = axis == Axis::kX;
  QCPItemText* text = d_->MakeText(label, Qt::AlignLeft | Qt::AlignBottom);
  PlaceAcross(*text->position, axis, value, isX ? 1.0 : 0.0);
}

void ChartPlot::AddLabel(QPointF where, const QString& text) {
  d_->MakeText(text, Qt::AlignHCenter | Qt::AlignBottom)->position->setCoords(where);
}

void ChartPlot::Clear() {
  for (QCPItemText* text : d_->texts) d_->plot->removeItem(text);
  for (QCPItemRect* band : d_->bands) d_->plot->removeItem(band);
  for (QCPItemStraightLine* marker : d_->markers) d_->plot->removeItem(marker);
  d_->plot->clearPlottables();
  d_->series.clear();
  d_->areas.clear();
  d_->bands.clear();
  d_->markers.clear();
  d_->texts.clear();
  d_->legendStale = true;
}

void ChartPlot::ShowCursor(const QPointF& point, const QString& text) {
  d_->tracer->position->setCoords(point);
  const QPointF room = QRectF(d_->plot->axisRect()->rect()).center();
  const QPointF pixel = Pixel(point);
  // The text stands towards the middle, where there is room.
  const bool left = pixel.x() > room.x(), below = pixel.y() < room.y();
  d_->readOut->setPositionAlignment((left ? Qt::AlignRight : Qt::AlignLeft) |
                                    (below ? Qt::AlignTop : Qt::AlignBottom));
  d_->readOut->position->setCoords(left ? -9 : 9, below ? 9 : -9);
  d_->readOut->setText(text);
  d_->tracer->setVisible(true);
  d_->readOut->setVisible(true);
  d_->plot->Touch();
}

void ChartPlot::HideCursor() {
  d_->tracer->setVisible(false);
  d_->readOut->setVisible(false);
  d_->plot->Touch();
}

void ChartPlot::Dress(const ChartTheme& theme, const QFont& font) {
  d_->plot->setBackground(QBrush(theme.background));
  d_->DressAxis(theme, font, *d_->plot->xAxis);
  d_->DressAxis(theme, font, *d_->plot->yAxis);
  for (int i = 0; i < static_cast<int>(d_->series.size()); ++i) d_->DressSeries(theme, i);
  for (std::size_t i = 0; i < d_->areas.size(); ++i) {
    d_->areas[i].lower->setPen(Qt::NoPen);
    d_->areas[i].upper->setPen(Qt::NoPen);
    d_->areas[i].upper->setBrush(theme.BandColor(static_cast<int>(i)));
  }
  for (std::size_t i = 0; i < d_->bands.size(); ++i) {
    d_->bands[i]->setPen(Qt::NoPen);
    d_->bands[i]->setBrush(theme.BandColor(static_cast<int>(i)));
  }
  for (QCPItemStraightLine* marker : d_->markers) marker->setPen(QPen(theme.ink, 1, Qt::DashLine));
  for (QCPItemText* text : d_->texts) {
    text->setColor(theme.ink);
    text->setFont(font);
  }
  d_->plot->legend->setBrush(theme.background);
  d_->plot->legend->setTextColor(theme.ink);
  d_->plot->legend->setFont(font);
  if (d_->title) d_->title->setTextColor(theme.ink);
  d_->DressCursor(theme, font);
  d_->plot->Touch();
}

QPixmap ChartPlot::Picture() const { return d_->plot->toPixmap(); }

bool ChartPlot::SavePng(const QString& file, QSize size, double scale) {
  return d_->plot->savePng(file, size.width(), size.height(), scale);
}

bool ChartPlot::SavePdf(const QString& file, QSize size) {
  return d_->plot->savePdf(file, size.width(), size.height());
}

}  // namespace GUI
