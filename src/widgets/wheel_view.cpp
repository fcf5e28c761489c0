// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/wheel_view.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/calc/color_code.h"
#include "platform/text/number.h"
#include "widgets/wheel_colors.h"

namespace GUI {

namespace {

using wheel_layout::Part;

constexpr double kTurn = 360.0;
/// Shares of half the widget's side: the ring, and the band that carries what is too much.
constexpr double kOuter = 0.86;
constexpr double kInner = 0.46;
constexpr double kBand = 0.06;
constexpr double kSelectionWidth = 3.5;
/// An overflow narrower than this is drawn this wide, so that it can be seen.
constexpr double kLeastShownOverflow = 2.0;
/// With two decimals less is 0.
constexpr double kLeastNamed = 0.005;

QString Degrees(double degrees) {
  return QString::fromStdString(platform::FixedText(degrees, 2)) + QChar(0x00B0);
}

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// Red that can be read on the palette's window.
QColor Warning(const QPalette& palette) {
  return qGray(palette.color(QPalette::Window).rgb()) < 128 ? QColor(255, 120, 110)
                                                            : QColor(190, 20, 20);
}

double Middle(const Part& part) { return part.startDegrees + part.sweepDegrees / 2; }

}  // namespace

WheelView::WheelView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  SetWheel({}, 0);
}

void WheelView::SetWheel(std::vector<CWSeg> wheel, double spokeSizeDegrees) {
  wheel_ = std::move(wheel);
  layout_ = wheel_layout::LayOut(wheel_, spokeSizeDegrees);
  selected_.clear();
  QStringList words;
  for (std::size_t i = 0; i < wheel_.size(); ++i) {
    if (wheel_[i].hasPlace()) words << SegmentText(i);
  }
  words << Degrees(layout_.totalDegrees) + QStringLiteral(", ") + TurnText();
  words_ = words.join(QStringLiteral("; "));
  setAccessibleDescription(words_);
  update();
}

void WheelView::SetSelected(std::set<std::size_t> segments) {
  if (segments == selected_) return;
  selected_ = std::move(segments);
  update();
}

QString WheelView::SegmentText(std::size_t segment) const {
  const std::string_view name = color_code::Name(wheel_[segment].getColor());
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())) + u' ' +
         Degrees(wheel_[segment].getSize());
}

QString WheelView::TurnText() const {
  const double over = layout_.OverflowDegrees(), gap = layout_.GapDegrees();
  if (layout_.parts.empty()) return tr("empty");
  if (over >= kLeastNamed) return tr("%1 over").arg(Degrees(over));
  if (over > 0) return tr("slightly over");
  return gap >= kLeastNamed ? tr("%1 open").arg(Degrees(gap)) : tr("full turn");
}

const Part* WheelView::PartOf(std::size_t segment) const {
  const auto found = std::ranges::find_if(layout_.parts, [segment](const Part& part) {
    return !part.IsSpoke() && part.segment == segment;
  });
  return found == layout_.parts.end() ? nullptr : &*found;
}

QPointF WheelView::Ring::At(double degrees, double radius) const {
  const double angle = degrees * std::numbers::pi / 180.0;
  return center + QPointF(std::sin(angle), -std::cos(angle)) * radius;
}

QPainterPath WheelView::Ring::Sector(QPointF center, double inner, double outer,
                                     double startDegrees, double sweepDegrees) {
  const auto box = [center](double radius) {
    return QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius);
  };
  QPainterPath path;
  if (sweepDegrees >= kTurn) {
    path.addEllipse(center, outer, outer);
    path.addEllipse(center, inner, inner);
    return path;
  }
  // Qt counts from the right and counterclockwise.
  path.arcMoveTo(box(outer), 90 - startDegrees);
  path.arcTo(box(outer), 90 - startDegrees, -sweepDegrees);
  path.arcTo(box(inner), 90 - startDegrees - sweepDegrees, sweepDegrees);
  path.closeSubpath();
  return path;
}

WheelView::Ring WheelView::DrawnRing() const {
  const double half = std::min(width(), height()) / 2.0;
  return {QRectF(rect()).center(), half * kInner, half * kOuter};
}

std::optional<std::size_t> WheelView::SegmentAt(QPointF place) const {
  const Ring ring = DrawnRing();
  const QPointF away = place - ring.center;
  const double radius = std::hypot(away.x(), away.y());
  if (radius < ring.inner || radius > ring.outer) return std::nullopt;
  const double degrees = std::atan2(away.x(), -away.y()) * 180.0 / std::numbers::pi;
  return wheel_layout::SegmentAt(wheel_, degrees);
}

std::optional<QPointF> WheelView::MiddleOf(std::size_t segment) const {
  const Part* part = PartOf(segment);
  if (!part) return std::nullopt;
  const Ring ring = DrawnRing();
  return ring.At(Middle(*part), (ring.inner + ring.outer) / 2);
}

QColor WheelView::FillOf(const Part& part) const {
  const QColor own = WheelColor(wheel_[part.segment].getColor());
  if (!part.IsSpoke()) return own;
  // In a spoke the light is of both colors and of no use.
  return Mixed(Mixed(own, WheelColor(wheel_[part.neighbour].getColor()), 0.5),
               QColor(110, 110, 110), 0.55);
}

void WheelView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const Ring ring = DrawnRing();
  DrawGap(painter, ring);
  // Of an overfull wheel, what lies first is not covered by what comes round again.
  for (auto part = layout_.parts.rbegin(); part != layout_.parts.rend(); ++part) {
    DrawPart(painter, ring, *part);
  }
  DrawSelection(painter, ring);
  for (const Part& part : layout_.parts) DrawLabel(painter, ring, part);
  DrawOverflow(painter, ring);
  DrawMiddle(painter, ring);
}

void WheelView::DrawGap(QPainter& painter, const Ring& ring) const {
  const double gap = layout_.parts.empty() ? kTurn : layout_.GapDegrees();
  if (gap <= 0) return;
  // The spoke behind the last segment is drawn whole, so the gap ends where the first part begins.
  const double start = layout_.parts.empty() ? 0.0 : layout_.parts.front().startDegrees - gap;
  const QPainterPath open = Ring::Sector(ring.center, ring.inner, ring.outer, start, gap);
  const QColor ink = palette().color(QPalette::WindowText);
  QColor faint = ink;
  faint.setAlpha(70);
  painter.fillPath(open, QBrush(faint, Qt::BDiagPattern));
  painter.strokePath(open, QPen(ink, 1, Qt::DashLine));
}

void WheelView::DrawPart(QPainter& painter, const Ring& ring, const Part& part) const {
  if (part.startDegrees >= kTurn || part.sweepDegrees <= 0) return;
  const double sweep = std::min(part.sweepDegrees, kTurn);
  const QPainterPath sector =
      Ring::Sector(ring.center, ring.inner, ring.outer, part.startDegrees, sweep);
  const QColor fill = FillOf(part);
  painter.fillPath(sector, fill);
  const QColor line(60, 60, 60);
  if (part.IsSpoke()) painter.fillPath(sector, QBrush(line, Qt::Dense6Pattern));
  painter.strokePath(sector, QPen(line, 0.8));
}

void WheelView::DrawSelection(QPainter& painter, const Ring& ring) const {
  const QColor highlight = palette().color(QPalette::Highlight);
  for (const std::size_t segment : selected_) {
    const Part* part = PartOf(segment);
    if (!part || part->startDegrees >= kTurn) continue;
    const double sweep = std::min(part->sweepDegrees, kTurn);
    // A frame inside of the segment with a light line along it shows on every color, and beside
    // the ring the arc shows which segment it is.
    const double frame = kSelectionWidth / 2;
    const QPainterPath sector = Ring::Sector(ring.center, ring.inner + frame, ring.outer - frame,
                                             part->startDegrees, sweep);
    painter.strokePath(sector, QPen(palette().color(QPalette::Window), kSelectionWidth + 2.5));
    painter.strokePath(sector, QPen(highlight, kSelectionWidth));
    const double out = ring.outer * (1 + kBand);
    painter.fillPath(Ring::Sector(ring.center, ring.outer + 2, out, part->startDegrees, sweep),
                     highlight);
  }
}

void WheelView::DrawLabel(QPainter& painter, const Ring& ring, const Part& part) const {
  if (part.IsSpoke() || part.startDegrees >= kTurn) return;
  const double radius = (ring.inner + ring.outer) / 2;
  const double arc = std::min(part.sweepDegrees, kTurn / 2) * std::numbers::pi / 180.0 * radius;
  const double room = std::min(arc, (ring.outer - ring.inner)) - 2 * kSelectionWidth;
  const QFontMetricsF metrics(font());
  const QString letter = QString::fromStdString(part.name);
  const QString size =
      QString::fromStdString(platform::GeneralText(wheel_[part.segment].getSize())) + QChar(0x00B0);
  QString text = letter + u'\n' + size;
  if (metrics.horizontalAdvance(size) > room || 2 * metrics.height() > arc) text = letter;
  if (metrics.horizontalAdvance(letter) > arc - 2 || metrics.height() > ring.outer - ring.inner) {
    return;
  }
  QRectF box(0, 0, ring.outer, 3 * metrics.height());
  box.moveCenter(ring.At(Middle(part), radius));
  painter.setPen(InkOnWheelColor(FillOf(part)));
  painter.drawText(box, Qt::AlignCenter, text);
}

void WheelView::DrawOverflow(QPainter& painter, const Ring& ring) const {
  const double over = layout_.OverflowDegrees();
  if (over <= 0) return;
  const QColor warning = Warning(palette());
  const double sweep = std::clamp(over, kLeastShownOverflow, kTurn);
  const double out = ring.outer * (1 + 2 * kBand);
  const QPainterPath band = Ring::Sector(ring.center, ring.outer * (1 + kBand) + 1, out, 0, sweep);
  painter.fillPath(band, warning);
  painter.setPen(QPen(warning, 2.5));
  painter.drawLine(ring.At(0, ring.inner - 4), ring.At(0, out + 2));
}

void WheelView::DrawMiddle(QPainter& painter, const Ring& ring) const {
  const bool over = layout_.OverflowDegrees() > 0;
  painter.setPen(over ? Warning(palette()) : palette().color(QPalette::WindowText));
  QFont bold = font();
  bold.setBold(true);
  bold.setPointSizeF(font().pointSizeF() * 1.2);
  painter.setFont(bold);
  const double height = QFontMetricsF(bold).height();
  QRectF box(0, 0, 2 * ring.inner, height);
  box.moveCenter(ring.center - QPointF(0, height / 2));
  painter.drawText(box, Qt::AlignCenter, Degrees(layout_.totalDegrees));
  painter.setFont(font());
  box.translate(0, height);
  painter.drawText(box, Qt::AlignCenter, TurnText());
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5, Qt::DotLine));
  painter.drawEllipse(ring.center, ring.inner - 5, ring.inner - 5);
}

void WheelView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  if (const auto segment = SegmentAt(event->position())) {
    emit segmentClicked(static_cast<int>(*segment));
  }
}

void WheelView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Home:
    case Qt::Key_End:
      return Go(event->key());
    default:
      QWidget::keyPressEvent(event);
  }
}

void WheelView::Go(int key) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < wheel_.size(); ++i) {
    if (wheel_[i].hasPlace()) places.push_back(i);
  }
  if (places.empty()) return;
  const auto count = places.size();
  const auto current =
      selected_.empty() ? places.end() : std::ranges::find(places, *selected_.begin());
  std::size_t to = static_cast<std::size_t>(current - places.begin());
  const bool isForward = key == Qt::Key_Right || key == Qt::Key_Down;
  if (key == Qt::Key_Home) {
    to = 0;
  } else if (key == Qt::Key_End) {
    to = count - 1;
  } else if (current == places.end()) {
    to = isForward ? 0 : count - 1;
  } else {
    to = (to + (isForward ? 1 : count - 1)) % count;
  }
  emit segmentClicked(static_cast<int>(places[to]));
}

void WheelView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void WheelView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

bool WheelView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const auto segment = SegmentAt(help->pos());
  QToolTip::showText(help->globalPos(),
                     segment ? tr("%1: %2").arg(*segment).arg(SegmentText(*segment)) : QString(),
                     this);
  return true;
}

}  // namespace GUI
