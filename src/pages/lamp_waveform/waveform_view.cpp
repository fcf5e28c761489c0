// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/waveform_view.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "widgets/chart_theme.h"
#include "widgets/wheel_colors.h"

namespace lamp_waveform {

namespace {

constexpr double kGap = 4.0;
constexpr double kLine = 1.5;
constexpr double kTickRoom = 90.0;  ///< pixels that a time tick takes at least
constexpr double kGainTick = 0.5;
constexpr double kMostGainTicks = 6.0;
/// How far beside a narrow pulse the mouse still means it, in pixels.
constexpr double kReach = 4.0;
constexpr double kZoomStep = 0.8;
constexpr double kPanShare = 0.1;

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

}  // namespace

WaveformView::WaveformView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void WaveformView::SetPicture(WaveformPicture picture) {
  picture_ = std::move(picture);
  window_.SetAll(picture_.startUs, picture_.endUs);
  selected_.reset();
  Describe();
}

void WaveformView::SetSelectedRow(std::optional<std::size_t> row) {
  if (row == selected_) return;
  selected_ = row;
  if (const StripPart* part = row ? PartOf(*row) : nullptr) {
    window_.Reveal(part->startUs, part->endUs);
  }
  Describe();
}

void WaveformView::Describe() {
  const bool known = selected_ && *selected_ < picture_.rowTexts.size();
  const std::string& words = known ? picture_.rowTexts[*selected_] : picture_.note;
  setAccessibleDescription(QString::fromStdString(words));
  update();
}

const StripPart* WaveformView::PartOf(std::size_t row) const {
  const auto found = std::ranges::find(picture_.strip, std::optional(row), &StripPart::row);
  return found == picture_.strip.end() ? nullptr : &*found;
}

const DrawnPulse* WaveformView::PulseOf(std::size_t row) const {
  const auto found = std::ranges::find(picture_.pulses, row, &DrawnPulse::row);
  return found == picture_.pulses.end() ? nullptr : &*found;
}

std::optional<QPointF> WaveformView::SegmentPlace(std::size_t row) const {
  const StripPart* part = PartOf(row);
  if (!part) return std::nullopt;
  return QPointF(XOf((part->startUs + part->endUs) / 2), strip_.center().y());
}

std::optional<QPointF> WaveformView::PulsePlace(std::size_t row) const {
  const DrawnPulse* pulse = PulseOf(row);
  if (!pulse) return std::nullopt;
  return QPointF(XOf((pulse->StartUs() + pulse->EndUs()) / 2), plot_.center().y());
}

void WaveformView::Arrange() {
  const QFontMetricsF metrics(font());
  const double line = metrics.height();
  const double numbers = metrics.horizontalAdvance(QStringLiteral("-0.0")) + 2 * kGap;
  plot_ =
      QRectF(rect()).adjusted(numbers, 1.5 * line + 2 * kGap, -line - kGap, -3 * line - 6 * kGap);
  strip_ = {plot_.left(), plot_.bottom() + kGap, plot_.width(), line + kGap};
  update();
}

void WaveformView::resizeEvent(QResizeEvent*) { Arrange(); }

void WaveformView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) Arrange();
}

double WaveformView::XOf(double us) const {
  return plot_.left() + plot_.width() * (us - window_.From()) / window_.Length();
}

double WaveformView::YOf(double gain) const {
  const double share = (gain - picture_.lowGain) / (picture_.highGain - picture_.lowGain);
  return plot_.bottom() - plot_.height() * share;
}

double WaveformView::TimeAt(double x) const {
  return window_.From() + window_.Length() * (x - plot_.left()) / plot_.width();
}

bool WaveformView::IsShown(double fromUs, double toUs) const {
  return toUs >= window_.From() && fromUs <= window_.To();
}

std::optional<std::size_t> WaveformView::RowAtPlace(const QPointF& place) const {
  if (picture_.IsEmpty() || place.x() < plot_.left() || place.x() > plot_.right()) {
    return std::nullopt;
  }
  const double us = TimeAt(place.x());
  if (strip_.contains(place)) return SegmentRowAt(picture_, us);
  if (!plot_.contains(place)) return std::nullopt;
  return RowAt(picture_, us, kReach * window_.Length() / plot_.width());
}

// Drawing.

void WaveformView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  if (!picture_.IsEmpty()) {
    painter.setRenderHint(QPainter::Antialiasing);
    DrawSegments(painter);
    DrawAxes(painter);
    DrawTimeAxis(painter);
    painter.save();
    painter.setClipRect(plot_.adjusted(0, -1, 0, 1));
    DrawCurrent(painter);
    for (const DrawnPulse& pulse : picture_.pulses) DrawPulse(painter, pulse);
    painter.restore();
  }
  DrawCaption(painter);
  DrawFrame(painter);
}

/// The segments' colors, faint behind the current and full in the strip.
void WaveformView::DrawSegments(QPainter& painter) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setClipRect(plot_.united(strip_).adjusted(0, 0, 1, 1));
  for (const StripPart& part : picture_.strip) {
    if (IsShown(part.startUs, part.endUs)) DrawStripPart(painter, part);
  }
  if (const StripPart* part = selected_ ? PartOf(*selected_) : nullptr) {
    const QRectF column(XOf(part->startUs), plot_.top(), XOf(part->endUs) - XOf(part->startUs),
                        strip_.bottom() - plot_.top());
    painter.setBrush(Faint(palette().color(QPalette::Highlight), 40));
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(column.adjusted(1, 1, -1, -1));
  }
  painter.restore();
}

QColor WaveformView::FillOf(const StripPart& part) const {
  const QColor own = GUI::WheelColor(part.color);
  if (!part.neighbour) return own;
  // In a spoke the light is of both colors and of no use.
  return Mixed(Mixed(own, GUI::WheelColor(*part.neighbour), 0.5), QColor(110, 110, 110), 0.55);
}

void WaveformView::DrawStripPart(QPainter& painter, const StripPart& part) const {
  const double left = XOf(part.startUs), width = XOf(part.endUs) - left;
  const QColor fill = FillOf(part);
  const QRectF cell(left, strip_.top(), width, strip_.height());
  // Mixed by hand: a fill that lets the ground through takes many times as long.
  painter.fillRect(QRectF(left, plot_.top(), width, plot_.height()),
                   Mixed(palette().color(QPalette::Base), fill, part.neighbour ? 0.24 : 0.1));
  painter.fillRect(cell, fill);
  if (part.neighbour) painter.fillRect(cell, QBrush(QColor(60, 60, 60), Qt::Dense6Pattern));
  const QString name = QString::fromStdString(part.name);
  const bool named = !part.neighbour && QFontMetricsF(font()).horizontalAdvance(name) + 2 < width;
  if (width > 3) {
    painter.setPen(QColor(60, 60, 60));
    painter.drawRect(cell);
  }
  if (!named) return;
  painter.setPen(GUI::InkOnWheelColor(fill));
  painter.drawText(cell.intersected(strip_), Qt::AlignCenter, name);
}

void WaveformView::DrawAxes(QPainter& painter) const {
  const GUI::ChartTheme theme = GUI::ChartTheme::Of(palette());
  const double line = QFontMetricsF(font()).height();
  const double step =
      kGainTick * std::ceil((picture_.highGain - picture_.lowGain) / kGainTick / kMostGainTicks);
  for (double gain = picture_.lowGain; gain <= picture_.highGain; gain += step) {
    const double y = YOf(gain);
    painter.setPen(QPen(theme.grid, 1));
    painter.drawLine(QPointF(plot_.left(), y), QPointF(plot_.right(), y));
    painter.setPen(theme.ink);
    painter.drawText(QRectF(0, y - line / 2, plot_.left() - kGap, line),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(gain, 'g', 4));
  }
  painter.setPen(QPen(theme.ink, 1, Qt::DotLine));
  painter.drawLine(QPointF(plot_.left(), YOf(1)), QPointF(plot_.right(), YOf(1)));
}

void WaveformView::DrawTimeAxis(QPainter& painter) const {
  const double line = QFontMetricsF(font()).height();
  painter.setPen(palette().color(QPalette::Text));
  for (const double tick :
       window_.Ticks(std::max(1, static_cast<int>(plot_.width() / kTickRoom)))) {
    const double x = XOf(tick);
    painter.drawLine(QPointF(x, strip_.bottom()), QPointF(x, strip_.bottom() + kGap));
    painter.drawText(QRectF(x - kTickRoom / 2, strip_.bottom() + kGap, kTickRoom, line),
                     Qt::AlignCenter, QString::number(tick, 'g', 8));
  }
  painter.drawText(QRectF(plot_.left(), strip_.bottom() + kGap + line, plot_.width(), line),
                   Qt::AlignCenter, tr("microseconds"));
}

void WaveformView::DrawPulse(QPainter& painter, const DrawnPulse& pulse) const {
  if (!IsShown(pulse.StartUs(), pulse.EndUs())) return;
  const GUI::ChartTheme theme = GUI::ChartTheme::Of(palette());
  const bool isSelected = selected_ == pulse.row;
  QColor color = theme.SeriesColor(pulse.dark ? 1 : 0);
  if (isSelected) color = palette().color(QPalette::Highlight);
  QPainterPath shape(QPointF(XOf(pulse.StartUs()), YOf(1)));
  for (const auto& [us, gain] : pulse.points) shape.lineTo(XOf(us), YOf(gain));
  shape.lineTo(XOf(pulse.EndUs()), YOf(1));
  painter.fillPath(shape, Faint(color, isSelected ? 150 : 90));
  if (pulse.dark) painter.fillPath(shape, QBrush(color, Qt::BDiagPattern));
  painter.strokePath(shape, QPen(color, isSelected ? 3 : kLine));
  if (pulse.dark) DrawMark(painter, shape.boundingRect());
}

/// Names a dark pulse, above the current where it points down, if that has room.
void WaveformView::DrawMark(QPainter& painter, const QRectF& pulse) const {
  const QFontMetricsF metrics(font());
  const QString mark = tr("DP");
  const double width = metrics.horizontalAdvance(mark);
  if (width > pulse.width() + 8) return;
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(QRectF(pulse.center().x() - width, YOf(1) - metrics.height() - 1, 2 * width,
                          metrics.height()),
                   Qt::AlignCenter, mark);
}

/// The current between the pulses, which draw themselves.
void WaveformView::DrawCurrent(QPainter& painter) const {
  painter.setPen(QPen(palette().color(QPalette::Text), kLine));
  for (std::size_t i = 1; i < picture_.current.size(); ++i) {
    const auto& [fromUs, from] = picture_.current[i - 1];
    const auto& [toUs, to] = picture_.current[i];
    if (from != 1 || to != 1 || !IsShown(fromUs, toUs)) continue;
    painter.drawLine(QPointF(XOf(fromUs), YOf(1)), QPointF(XOf(toUs), YOf(1)));
  }
}

void WaveformView::DrawCaption(QPainter& painter) const {
  const double line = QFontMetricsF(font()).height();
  const QRectF place(2 * kGap, kGap, width() - 4 * kGap, line);
  painter.setPen(palette().color(QPalette::Text));
  if (picture_.IsEmpty()) {
    painter.drawText(QRectF(rect()), Qt::AlignCenter, QString::fromStdString(picture_.note));
    return;
  }
  painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, tr("Lamp current (gain)"));
  painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, accessibleDescription());
}

void WaveformView::DrawFrame(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(
      QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), hasFocus() ? 2 : 1));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

// Mouse and keyboard.

bool WaveformView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const auto row = RowAtPlace(help->pos());
  const bool known = row && *row < picture_.rowTexts.size();
  QToolTip::showText(help->globalPos(),
                     known ? QString::fromStdString(picture_.rowTexts[*row]) : QString(), this);
  return true;
}

void WaveformView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  gripX_ = event->position().x();
  dragged_ = false;
}

void WaveformView::mouseMoveEvent(QMouseEvent* event) {
  if (!gripX_) return;
  const double moved = event->position().x() - *gripX_;
  if (!dragged_ && std::abs(moved) < QApplication::startDragDistance()) return;
  dragged_ = true;
  window_.Pan(-moved * window_.Length() / plot_.width());
  gripX_ = event->position().x();
  update();
}

void WaveformView::mouseReleaseEvent(QMouseEvent* event) {
  if (!gripX_ || event->button() != Qt::LeftButton) return;
  gripX_.reset();
  if (dragged_) return;
  if (const auto row = RowAtPlace(event->position())) emit rowClicked(*row);
}

void WaveformView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (const auto row = RowAtPlace(event->position())) emit rowActivated(*row);
}

void WaveformView::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  if (!hasFocus() || turn == 0) return event->ignore();
  window_.Zoom(TimeAt(event->position().x()), turn > 0 ? kZoomStep : 1 / kZoomStep);
  update();
}

void WaveformView::keyPressEvent(QKeyEvent* event) {
  const bool pans = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Left:
      pans ? window_.Pan(-kPanShare * window_.Length()) : Step(-1);
      break;
    case Qt::Key_Right:
      pans ? window_.Pan(kPanShare * window_.Length()) : Step(1);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (selected_) emit rowActivated(*selected_);
      break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      window_.Zoom(ZoomPlace(), kZoomStep);
      break;
    case Qt::Key_Minus:
      window_.Zoom(ZoomPlace(), 1 / kZoomStep);
      break;
    case Qt::Key_Home:
      window_.ShowAll();
      break;
    default:
      return QWidget::keyPressEvent(event);
  }
  update();
}

/// The keyboard zooms about the selected segment where that is visible.
double WaveformView::ZoomPlace() const {
  const StripPart* part = selected_ ? PartOf(*selected_) : nullptr;
  if (part && IsShown(part->startUs, part->endUs)) return (part->startUs + part->endUs) / 2;
  return (window_.From() + window_.To()) / 2;
}

void WaveformView::Step(int by) {
  const auto rows = static_cast<long long>(picture_.rowTexts.size());
  if (rows == 0) return;
  const long long from = selected_ ? static_cast<long long>(*selected_) : by > 0 ? -1 : rows;
  emit rowClicked(static_cast<std::size_t>(std::clamp(from + by, 0LL, rows - 1)));
}

void WaveformView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void WaveformView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace lamp_waveform
