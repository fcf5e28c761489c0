// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPixmap>
#include <QWidget>
#include <memory>

#include "widgets/chart_data.h"
#include "widgets/chart_theme.h"

namespace GUI {

/// The drawing behind a LineChart: it shows what it is given and reports the mouse. The only class
/// that knows the plotting library.
class ChartPlot : public QWidget {
  Q_OBJECT

 public:
  using Axis = LineChart::Axis;
  using Range = LineChart::Range;

  explicit ChartPlot(QWidget* parent = nullptr);
  ~ChartPlot() override;

  void SetTitle(const QString& title);
  void SetAxisTitle(Axis axis, const QString& title);
  void SetScale(Axis axis, LineChart::Scale scale);
  void SetLegendVisible(bool visible);
  void SetWheelZooms(bool zooms);

  [[nodiscard]] Range View(Axis axis) const;
  void SetView(Axis axis, Range range);
  /// About the middle of the plot.
  void ZoomView(double factor);
  /// By a share of what is visible.
  void PanView(Axis axis, double share);
  void Reveal(const QPointF& point);
  /// Where a point is, in pixels of this widget.
  [[nodiscard]] QPointF Pixel(const QPointF& point) const;

  void AddSeries(const ChartSeries& series);
  void ReplaceSeries(int number, const ChartSeries& series);
  void AddArea(const QString& name, const QList<QPointF>& lower, const QList<QPointF>& upper);
  void AddBand(Axis axis, Range range, const QString& name);
  void AddMarker(Axis axis, double value, const QString& label);
  void AddLabel(QPointF where, const QString& text);
  void Clear();
  void ShowCursor(const QPointF& point, const QString& text);
  void HideCursor();

  /// Gives everything the theme's colors and the font.
  void Dress(const ChartTheme& theme, const QFont& font);

  [[nodiscard]] QPixmap Picture() const;
  bool SavePng(const QString& file, QSize size, double scale);
  bool SavePdf(const QString& file, QSize size);

 signals:
  /// A person dragged or zoomed.
  void viewDragged();
  void hovered(QPointF pixel);
  void clicked(QPointF pixel);
  void doubleClicked();

 private:
  struct Private;
  std::unique_ptr<Private> d_;
};

}  // namespace GUI
