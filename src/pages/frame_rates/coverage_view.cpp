// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/coverage_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "pages/frame_rates/rules/coverage.h"
#include "pages/frame_rates/rules/display.h"
#include "pages/frame_rates/rules/rate_table.h"
#include "widgets/chart_theme.h"

namespace frame_rates {

namespace {

constexpr double kSlowestHz = 20.0;
constexpr double kFastestHz = 500.0;
constexpr double kTicksHz[] = {20, 30, 40, 50, 70, 100, 150, 200, 300, 400, 500};
/// How far beside a narrow bar the mouse still means it, in pixels.
constexpr double kReach = 3.0;
constexpr double kGap = 4.0;

bool Holds(const std::optional<BinSpan>& span, int bin) {
  return span && span->first <= bin && bin <= span->last;
}

QString LabelOf(const FreqBinData& bin) {
  return QStringLiteral("%1 × %2")
      .arg(QString::fromStdString(bin.label))
      .arg(bin.SequenceMultiplier);
}

}  // namespace

CoverageView::CoverageView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void CoverageView::SetTable(std::vector<FreqBinData> table) {
  table_ = std::move(table);
  selected_.reset();
  pointedAt_.reset();
  hovered_ = -1;
  Describe();
}

void CoverageView::SelectBins(std::optional<BinSpan> bins) {
  selected_ = bins;
  Describe();
}

void CoverageView::PointAtBins(std::optional<BinSpan> bins) {
  pointedAt_ = bins;
  Describe();
}

void CoverageView::SetProbe(std::optional<double> rateHz) {
  probeHz_ = rateHz;
  update();
}

void CoverageView::Describe() {
  QStringList lines;
  for (int bin = 0; bin < static_cast<int>(table_.size()); ++bin) {
    if (Holds(selected_, bin)) lines << TextOf(bin);
  }
  setAccessibleDescription(lines.join(u'\n'));
  update();
}

QString CoverageView::TextOf(int bin) const {
  const FreqBinData& shown = table_.at(static_cast<std::size_t>(bin));
  return QStringLiteral("%1: %2, %3%4")
      .arg(QString::fromStdString(SpanText({shown.MinFrameCount, shown.MaxFrameCount})),
           QString::fromStdString(SyncText(shown)), LabelOf(shown),
           shown.Enable3d ? QStringLiteral(", 3D possible") : QString());
}

QRectF CoverageView::PlotArea() const {
  const QFontMetricsF metrics(font());
  const double line = metrics.height();
  const double names = std::max(metrics.horizontalAdvance(QStringLiteral("LEV")),
                                metrics.horizontalAdvance(QStringLiteral("LIV")));
  // The last tick's number hangs over the end of the axis.
  return QRectF(rect()).adjusted(names + 3 * kGap, line + 2 * kGap, -line - kGap,
                                 -2 * line - 2 * kGap);
}

QRectF CoverageView::Lane(bool internalSync) const {
  const QRectF area = PlotArea();
  const double height = (area.height() - kGap) / 2;
  return {area.left(), internalSync ? area.bottom() - height : area.top(), area.width(), height};
}

double CoverageView::PixelOf(double rateHz) const {
  const QRectF area = PlotArea();
  const double shown = std::clamp(rateHz, kSlowestHz, kFastestHz);
  return area.left() +
         area.width() * std::log(shown / kSlowestHz) / std::log(kFastestHz / kSlowestHz);
}

QRectF CoverageView::BarOf(int bin) const {
  const FreqBinData& shown = table_.at(static_cast<std::size_t>(bin));
  const bool outside = shown.maxRateHz < kSlowestHz || shown.minRateHz > kFastestHz;
  if (outside || shown.MinFrameCount > shown.MaxFrameCount) return {};
  QRectF bar = Lane(shown.IsLockToInternalVsync != 0);
  bar.setLeft(PixelOf(shown.minRateHz));
  bar.setRight(std::max(PixelOf(shown.maxRateHz), bar.left() + 1));
  return bar;
}

int CoverageView::BinAt(const QPointF& place) const {
  int nearest = -1;
  double least = kReach;
  for (int bin = 0; bin < static_cast<int>(table_.size()); ++bin) {
    const QRectF bar = BarOf(bin);
    if (bar.isEmpty() || place.y() < bar.top() || place.y() > bar.bottom()) continue;
    const double away = std::max({bar.left() - place.x(), place.x() - bar.right(), 0.0});
    if (away >= least) continue;
    least = away;
    nearest = bin;
  }
  return nearest;
}

void CoverageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  DrawAxis(painter);
  for (const bool internalSync : {false, true}) DrawLaneName(painter, internalSync);
  const int bins = static_cast<int>(table_.size());
  for (int bin = 0; bin < bins; ++bin) DrawBar(painter, bin);
  DrawMark(painter, kFloorHz, QStringLiteral("floor 55 Hz"), true);
  DrawMark(painter, 60.0, QStringLiteral("60 Hz"), false);
  DrawMark(painter, 120.0, QStringLiteral("3D 120 Hz"), false);
  DrawProbe(painter);
  DrawLabels(painter);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(
      QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), hasFocus() ? 2 : 1));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void CoverageView::DrawAxis(QPainter& painter) const {
  const GUI::ChartTheme theme = GUI::ChartTheme::Of(palette());
  const QRectF area = PlotArea();
  const double line = QFontMetricsF(font()).height();
  for (const double tick : kTicksHz) {
    const double x = PixelOf(tick);
    painter.setPen(theme.grid);
    painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom() + kGap));
    painter.setPen(theme.ink);
    painter.drawText(QRectF(x - 40, area.bottom() + kGap, 80, line), Qt::AlignCenter,
                     QString::number(tick));
  }
  painter.drawText(QRectF(area.left(), area.bottom() + kGap + line, area.width(), line),
                   Qt::AlignCenter, QStringLiteral("Source frame rate (Hz)"));
}

void CoverageView::DrawLaneName(QPainter& painter, bool internalSync) const {
  const QRectF lane = Lane(internalSync);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(QRectF(kGap, lane.top(), lane.left() - 2 * kGap, lane.height()),
                   Qt::AlignVCenter | Qt::AlignRight,
                   internalSync ? QStringLiteral("LIV") : QStringLiteral("LEV"));
}

void CoverageView::DrawMark(QPainter& painter, double rateHz, const QString& label,
                            bool labelLeft) const {
  const QRectF area = PlotArea();
  const double x = PixelOf(rateHz), top = kGap;
  painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
  painter.drawLine(QPointF(x, top), QPointF(x, area.bottom()));
  const QRectF room(labelLeft ? x - 200 - kGap : x + kGap, top, 200, area.top() - top);
  painter.drawText(room, Qt::AlignVCenter | (labelLeft ? Qt::AlignRight : Qt::AlignLeft), label);
}

void CoverageView::DrawBar(QPainter& painter, int bin) const {
  const QRectF bar = BarOf(bin);
  if (bar.isEmpty()) return;
  const FreqBinData& shown = table_[static_cast<std::size_t>(bin)];
  const QColor color =
      GUI::ChartTheme::Of(palette()).SeriesColor(shown.IsLockToInternalVsync ? 1 : 0);
  const bool selected = Holds(selected_, bin), pointedAt = Holds(pointedAt_, bin);
  QColor fill = color;
  fill.setAlpha(selected ? 150 : pointedAt ? 110 : 55);
  painter.setBrush(fill);
  painter.setPen(selected ? QPen(palette().color(QPalette::Text), 2) : QPen(color));
  painter.drawRect(selected ? bar.adjusted(1, 1, -1, -1) : bar);
}

void CoverageView::DrawProbe(QPainter& painter) const {
  if (!probeHz_ || *probeHz_ < kSlowestHz || *probeHz_ > kFastestHz) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DotLine));
  const double x = PixelOf(*probeHz_);
  painter.drawLine(QPointF(x, PlotArea().top()), QPointF(x, PlotArea().bottom()));
}

void CoverageView::DrawLabels(QPainter& painter) const {
  const QFontMetricsF metrics(font());
  std::vector<QRectF> taken;
  for (int bin = 0; bin < static_cast<int>(table_.size()); ++bin) {
    const QRectF bar = BarOf(bin);
    const QString text = LabelOf(table_[static_cast<std::size_t>(bin)]);
    QSizeF size(metrics.horizontalAdvance(text) + kGap, metrics.height());
    if (size.width() > bar.width()) size.transpose();
    if (size.width() > bar.width() || size.height() > bar.height()) continue;
    QRectF place({}, size);
    place.moveCenter(bar.center());
    if (std::ranges::any_of(taken, [&](const QRectF& other) { return other.intersects(place); }))
      continue;
    taken.push_back(place);
    DrawLabel(painter, place, text);
  }
}

void CoverageView::DrawLabel(QPainter& painter, const QRectF& place, const QString& text) const {
  const bool upright = place.height() > place.width();
  painter.save();
  painter.translate(place.center());
  if (upright) painter.rotate(-90);
  const QSizeF size = upright ? place.size().transposed() : place.size();
  const QRectF plate({-size.width() / 2, -size.height() / 2}, size);
  // Lines that cross the bar do not cross its name.
  QColor ground = palette().color(QPalette::Base);
  ground.setAlpha(170);
  painter.fillRect(plate, ground);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(plate, Qt::AlignCenter, text);
  painter.restore();
}

void CoverageView::PointAt(int bin) {
  if (bin == hovered_) return;
  hovered_ = bin;
  emit binHovered(bin);
}

bool CoverageView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const int bin = BinAt(help->pos());
    QToolTip::showText(help->globalPos(), bin < 0 ? QString() : TextOf(bin), this, {},
                       toolTipDuration());
    return true;
  }
  if (event->type() == QEvent::Leave) PointAt(-1);
  return QWidget::event(event);
}

void CoverageView::mouseMoveEvent(QMouseEvent* event) { PointAt(BinAt(event->position())); }

void CoverageView::mousePressEvent(QMouseEvent* event) {
  const int bin = BinAt(event->position());
  if (event->button() == Qt::LeftButton && bin >= 0) emit binClicked(bin);
}

void CoverageView::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Left ? -1 : event->key() == Qt::Key_Right ? 1 : 0;
  if (step == 0 || table_.empty()) return QWidget::keyPressEvent(event);
  const int last = static_cast<int>(table_.size()) - 1;
  const int from =
      !selected_ ? (step > 0 ? -1 : last + 1) : (step > 0 ? selected_->last : selected_->first);
  emit binClicked(std::clamp(from + step, 0, last));
}

void CoverageView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void CoverageView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace frame_rates
