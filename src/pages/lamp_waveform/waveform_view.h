// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>
#include <optional>

#include "pages/lamp_waveform/rules/time_window.h"
#include "pages/lamp_waveform/rules/waveform_picture.h"

namespace lamp_waveform {

/// The lamp current of a waveform over its sequence, with the wheel's segments and spokes as a
/// colored strip under the same time axis. Left and Right go from entry to entry of the pulse list,
/// Enter opens the selected one; + and - zoom, Home shows all, Ctrl with Left and Right pans. The
/// mouse wheel zooms while the view has the focus, dragging pans.
class WaveformView : public QWidget {
  Q_OBJECT

 public:
  explicit WaveformView(QWidget* parent = nullptr);

  void SetPicture(WaveformPicture picture);
  /// Highlights an entry of the pulse list, and scrolls to it.
  void SetSelectedRow(std::optional<std::size_t> row);

  /// Where the middle of an entry's segment, and of its pulse, is in the widget; nothing for one
  /// that is not drawn. For the tests' mouse.
  [[nodiscard]] std::optional<QPointF> SegmentPlace(std::size_t row) const;
  [[nodiscard]] std::optional<QPointF> PulsePlace(std::size_t row) const;
  [[nodiscard]] const TimeWindow& Window() const noexcept { return window_; }

  [[nodiscard]] QSize sizeHint() const override { return {760, 240}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {360, 180}; }

 signals:
  void rowClicked(std::size_t row);
  /// A double click, or Enter.
  void rowActivated(std::size_t row);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Finds the places of the plot and the strip for the widget's size and font.
  void Arrange();
  [[nodiscard]] double XOf(double us) const;
  [[nodiscard]] double YOf(double gain) const;
  [[nodiscard]] double TimeAt(double x) const;
  [[nodiscard]] std::optional<std::size_t> RowAtPlace(const QPointF& place) const;
  [[nodiscard]] const StripPart* PartOf(std::size_t row) const;
  [[nodiscard]] const DrawnPulse* PulseOf(std::size_t row) const;
  [[nodiscard]] bool IsShown(double fromUs, double toUs) const;

  void DrawAxes(QPainter& painter) const;
  void DrawTimeAxis(QPainter& painter) const;
  void DrawSegments(QPainter& painter) const;
  void DrawStripPart(QPainter& painter, const StripPart& part) const;
  void DrawPulse(QPainter& painter, const DrawnPulse& pulse) const;
  void DrawMark(QPainter& painter, const QRectF& pulse) const;
  void DrawCurrent(QPainter& painter) const;
  void DrawCaption(QPainter& painter) const;
  void DrawFrame(QPainter& painter) const;
  [[nodiscard]] QColor FillOf(const StripPart& part) const;

  [[nodiscard]] double ZoomPlace() const;
  void Step(int by);
  void Describe();

  QRectF plot_;
  QRectF strip_;
  WaveformPicture picture_;
  TimeWindow window_;
  std::optional<std::size_t> selected_;
  std::optional<double> gripX_;  ///< where the mouse holds the picture
  bool dragged_ = false;
};

}  // namespace lamp_waveform
