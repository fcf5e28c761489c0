// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QWidget>
#include <optional>
#include <set>
#include <vector>

#include "host/calc/cw_seg.h"
#include "host/calc/wheel_layout.h"

namespace GUI {

/// A picture of a color wheel: its segments in their colors at their angles, clockwise from the
/// top, the spokes between them, and what is missing to a full turn, or more than one. Segments
/// count from 0 as in the wheel's list; those that have no place on the wheel are not drawn.
///
/// A click on a segment, or an arrow key, Home or End that goes to one, is signalled. The picture
/// only shows the selection it is given.
class WheelView : public QWidget {
  Q_OBJECT

 public:
  explicit WheelView(QWidget* parent = nullptr);

  /// Shows that wheel with nothing selected.
  void SetWheel(std::vector<CWSeg> wheel, double spokeSizeDegrees);
  void SetSelected(std::set<std::size_t> segments);

  /// The segment drawn at a place of the widget.
  [[nodiscard]] std::optional<std::size_t> SegmentAt(QPointF place) const;
  /// The middle of a segment as it is drawn; nothing for one without a place.
  [[nodiscard]] std::optional<QPointF> MiddleOf(std::size_t segment) const;
  /// What the picture shows, in words.
  [[nodiscard]] const QString& Words() const { return words_; }

  [[nodiscard]] QSize sizeHint() const override { return {260, 260}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {160, 160}; }

 signals:
  void segmentClicked(int segment);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// Radii and center of the drawn ring.
  struct Ring {
    QPointF center;
    double inner = 0;
    double outer = 0;
    [[nodiscard]] QPointF At(double degrees, double radius) const;
    /// The part of a ring from one radius to the other.
    [[nodiscard]] static QPainterPath Sector(QPointF center, double inner, double outer,
                                             double startDegrees, double sweepDegrees);
  };

  [[nodiscard]] Ring DrawnRing() const;
  [[nodiscard]] QString SegmentText(std::size_t segment) const;
  [[nodiscard]] QString TurnText() const;
  [[nodiscard]] const wheel_layout::Part* PartOf(std::size_t segment) const;
  [[nodiscard]] QColor FillOf(const wheel_layout::Part& part) const;
  void DrawGap(QPainter& painter, const Ring& ring) const;
  void DrawPart(QPainter& painter, const Ring& ring, const wheel_layout::Part& part) const;
  void DrawSelection(QPainter& painter, const Ring& ring) const;
  void DrawLabel(QPainter& painter, const Ring& ring, const wheel_layout::Part& part) const;
  void DrawOverflow(QPainter& painter, const Ring& ring) const;
  void DrawMiddle(QPainter& painter, const Ring& ring) const;
  void Go(int key);

  std::vector<CWSeg> wheel_;
  wheel_layout::Layout layout_;
  std::set<std::size_t> selected_;
  QString words_;
};

}  // namespace GUI
