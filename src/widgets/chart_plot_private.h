// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <qcustomplot.h>

#include <optional>
#include <utility>
#include <vector>

#include "widgets/chart_plot.h"

namespace GUI {

/// A plot that is drawn anew when it is next painted after a change.
class ReplottingPlot : public QCustomPlot {
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

/// What the plot holds, and how that is laid out and colored.
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
  ReplottingPlot* plot = nullptr;
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

}  // namespace GUI
