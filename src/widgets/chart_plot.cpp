// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/chart_plot.h"

#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "widgets/chart_plot_private.h"

namespace GUI {

namespace {

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

ChartPlot::ChartPlot(QWidget* parent) : QWidget(parent), d_(std::make_unique<Private>(*this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(d_->plot);
  ReplottingPlot* plot = d_->plot;
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
