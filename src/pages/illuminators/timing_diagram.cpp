// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/timing_diagram.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "pages/illuminators/rules/illuminator_rows.h"
#include "pages/illuminators/rules/pulse_timing.h"

namespace illuminators {

namespace {

/// Shares of the picture's height at which its parts stand.
constexpr double kDriveHigh = 0.20, kDriveLow = 0.36;
/// Of A and of B: in a narrow picture the one's label may run into the other.
constexpr double kFirst = 0.44, kSecond = 0.52;
constexpr double kLightHigh = 0.58, kLightLow = 0.74;
constexpr double kBelow = 0.82;
constexpr double kScale = 0.94;
/// What is shown before the drive goes on and behind the dark, as a share of the time between.
constexpr double kLead = 0.06, kTail = 0.05;
constexpr double kPad = 12;
constexpr double kArrow = 5;

QString Text(const std::string& text) { return QString::fromStdString(text); }

QColor FillOf(const IllumCharacteristics& illuminator) {
  const auto color = ColorOf(illuminator.Type);
  return color ? QColor(color->red, color->green, color->blue) : QColor(Qt::gray);
}

void DrawArrowHead(QPainter& painter, QPointF tip, double direction) {
  painter.drawLine(tip, tip + QPointF(-direction * kArrow, -kArrow / 2));
  painter.drawLine(tip, tip + QPointF(-direction * kArrow, kArrow / 2));
}

/// A dimension: a line between two moments, with arrow heads that stand outside where there is no
/// room between. `label` stands in the middle, or to the right when it is longer than the line;
/// there it covers what is below.
void DrawDimension(QPainter& painter, double from, double to, double y, const QString& label) {
  const bool roomy = to - from > 3 * kArrow;
  if (roomy) {
    painter.drawLine(QPointF(from, y), QPointF(to, y));
  } else {
    painter.drawLine(QPointF(from - 3 * kArrow, y), QPointF(from, y));
    painter.drawLine(QPointF(to, y), QPointF(to + 3 * kArrow, y));
  }
  DrawArrowHead(painter, {from, y}, roomy ? -1 : 1);
  DrawArrowHead(painter, {to, y}, roomy ? 1 : -1);
  const QFontMetricsF metrics(painter.font());
  const double width = metrics.horizontalAdvance(label);
  const bool fits = width + 2 * kArrow < to - from;
  const double left = fits ? (from + to - width) / 2 : to + (roomy ? 1 : 4) * kArrow;
  const double base = fits ? y - metrics.descent() - 2 : y + metrics.capHeight() / 2;
  painter.setBackgroundMode(fits ? Qt::TransparentMode : Qt::OpaqueMode);
  painter.drawText(QPointF(left, base), label);
  painter.setBackgroundMode(Qt::TransparentMode);
}

}  // namespace

/// Where moments and levels stand in the picture, in pixels.
struct TimingDiagram::Frame {
  PulseTiming timing;
  double left = 0;   ///< end of the names
  double right = 0;  ///< end of the traces
  double height = 0;
  double zero = 0;  ///< where the drive goes on
  double pixelsPerUs = 1;

  [[nodiscard]] double X(double microseconds) const { return zero + microseconds * pixelsPerUs; }
  [[nodiscard]] double Y(double share) const { return share * height; }
};

TimingDiagram::TimingDiagram(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
  Show(std::nullopt);
}

void TimingDiagram::Show(const std::optional<IllumCharacteristics>& illuminator) {
  illuminator_ = illuminator;
  words_ =
      illuminator ? Text(TimingWords(*illuminator)) : tr("No illuminator is chosen in this row.");
  setAccessibleDescription(words_);
  update();
}

TimingDiagram::Frame TimingDiagram::MakeFrame() const {
  const QFontMetricsF metrics(font());
  Frame frame;
  frame.timing = *TimingOf(*illuminator_);
  frame.height = height();
  frame.left = kPad + metrics.horizontalAdvance(tr("Light output")) + kPad;
  // A label that finds no room in its place stands to the right of it.
  const double labelRoom =
      metrics.horizontalAdvance(QStringLiteral("C = 2000.00 usecs")) + 5 * kArrow;
  frame.right = width() - labelRoom;
  const double shown = frame.timing.dark * (1 + kLead + kTail);
  frame.pixelsPerUs = (frame.right - frame.left) / shown;
  frame.zero = frame.left + kLead * frame.timing.dark * frame.pixelsPerUs;
  return frame;
}

void TimingDiagram::DrawTraces(QPainter& painter, const Frame& frame) const {
  const PulseTiming& timing = frame.timing;
  QPainterPath drive({frame.left, frame.Y(kDriveLow)});
  drive.lineTo(frame.X(0), frame.Y(kDriveLow));
  drive.lineTo(frame.X(0), frame.Y(kDriveHigh));
  drive.lineTo(frame.X(timing.driveOff), frame.Y(kDriveHigh));
  drive.lineTo(frame.X(timing.driveOff), frame.Y(kDriveLow));
  drive.lineTo(frame.right, frame.Y(kDriveLow));
  QPainterPath light({frame.left, frame.Y(kLightLow)});
  light.lineTo(frame.X(timing.lightOn), frame.Y(kLightLow));
  light.lineTo(frame.X(timing.lightOn), frame.Y(kLightHigh));
  light.lineTo(frame.X(timing.lightFalls), frame.Y(kLightHigh));
  light.lineTo(frame.X(timing.dark), frame.Y(kLightLow));
  light.lineTo(frame.right, frame.Y(kLightLow));
  painter.fillPath(light, FillOf(*illuminator_));
  painter.setPen(QPen(palette().color(QPalette::Text), 1.6));
  painter.drawPath(drive);
  painter.drawPath(light);
  const QFontMetricsF metrics(font());
  const double half = metrics.capHeight() / 2;
  painter.drawText(QPointF(kPad, frame.Y((kDriveHigh + kDriveLow) / 2) + half), tr("Drive signal"));
  painter.drawText(QPointF(kPad, frame.Y((kLightHigh + kLightLow) / 2) + half), tr("Light output"));
}

void TimingDiagram::DrawTimes(QPainter& painter, const Frame& frame) const {
  const PulseTiming& timing = frame.timing;
  QColor faint = palette().color(QPalette::Text);
  faint.setAlphaF(0.55F);
  painter.setPen(QPen(faint, 1, Qt::DashLine));
  const auto guide = [&](double time, double from, double to) {
    painter.drawLine(QPointF(frame.X(time), frame.Y(from)), QPointF(frame.X(time), frame.Y(to)));
  };
  guide(0, kDriveLow, kFirst + 0.03);
  guide(timing.lightOn, kFirst - 0.03, kLightHigh);
  guide(timing.driveOff, kDriveLow, kSecond + 0.03);
  guide(timing.lightFalls, kSecond - 0.03, kBelow + 0.03);
  guide(timing.dark, kLightLow, kBelow + 0.03);
  painter.setPen(QPen(palette().color(QPalette::Text), 1));
  painter.setBackground(palette().base());
  const auto label = [](const char* letter, double time) {
    return QLatin1String(letter) + QStringLiteral(" = ") + Text(TimeText(time));
  };
  DrawDimension(painter, frame.X(0), frame.X(timing.lightOn), frame.Y(kFirst),
                label("A", illuminator_->EnableDelay));
  DrawDimension(painter, frame.X(timing.driveOff), frame.X(timing.lightFalls), frame.Y(kSecond),
                label("B", illuminator_->DisableDelay));
  DrawDimension(painter, frame.X(timing.lightFalls), frame.X(timing.dark), frame.Y(kBelow),
                label("C", illuminator_->FallMargin));
}

/// How long a time is that everybody can read off: without times there is no scale.
void TimingDiagram::DrawScale(QPainter& painter, const Frame& frame) const {
  const IllumCharacteristics& times = *illuminator_;
  if (times.EnableDelay + times.DisableDelay + times.FallMargin <= 0) return;
  const double length = ScaleBarLength(frame.timing.dark / 3);
  const double y = frame.Y(kScale), from = frame.X(0), to = frame.X(length);
  painter.drawLine(QPointF(from, y), QPointF(to, y));
  painter.drawLine(QPointF(from, y - 4), QPointF(from, y + 4));
  painter.drawLine(QPointF(to, y - 4), QPointF(to, y + 4));
  painter.drawText(QPointF(to + 6, y + QFontMetricsF(font()).capHeight() / 2),
                   Text(GeneralTimeText(length)));
}

void TimingDiagram::DrawWords(QPainter& painter) const {
  const QRectF box = QRectF(rect()).adjusted(kPad, kPad, -kPad, -kPad);
  painter.drawText(box, Qt::AlignCenter | Qt::TextWordWrap, words_);
}

void TimingDiagram::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(palette().color(QPalette::Text));
  if (!illuminator_ || !TimingOf(*illuminator_)) return DrawWords(painter);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.drawText(QPointF(kPad, kPad + QFontMetricsF(bold).ascent()),
                   Text(TimingTitle(*illuminator_)));
  painter.setFont(font());
  const Frame frame = MakeFrame();
  DrawTraces(painter, frame);
  DrawTimes(painter, frame);
  DrawScale(painter, frame);
}

}  // namespace illuminators
