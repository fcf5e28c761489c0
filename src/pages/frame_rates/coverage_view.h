// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "model/frame_rates_page_data.h"

namespace frame_rates {

/// Places of bins in a table, both included.
struct BinSpan {
  int first = 0;
  int last = 0;

  friend bool operator==(const BinSpan&, const BinSpan&) = default;
};

/// The bins of a table as bars over a logarithmic axis of source rates, 20 to 500 Hz: those locked
/// to the source in one lane, those on internal sync in another, each labelled with its range and
/// multiplier where there is room. Left and Right go from bar to bar.
class CoverageView : public QWidget {
  Q_OBJECT

 public:
  explicit CoverageView(QWidget* parent = nullptr);

  /// Nothing is selected or pointed at then.
  void SetTable(std::vector<FreqBinData> table);
  void SelectBins(std::optional<BinSpan> bins);
  /// Bins that are pointed at, here or in the table.
  void PointAtBins(std::optional<BinSpan> bins);
  /// Marks a source rate (Hz), or none. A rate beside the axis has no mark.
  void SetProbe(std::optional<double> rateHz);

  /// The bin whose bar is at this place of the widget; -1 when there is none.
  [[nodiscard]] int BinAt(const QPointF& place) const;
  /// Where a bin's bar is; empty when it lies outside the axis.
  [[nodiscard]] QRectF BarOf(int bin) const;
  /// What a bin serves and how, in one line.
  [[nodiscard]] QString TextOf(int bin) const;

  [[nodiscard]] QSize sizeHint() const override { return {760, 225}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {480, 225}; }

 signals:
  /// The person points at a bin's bar; -1 when at none.
  void binHovered(int bin);
  void binClicked(int bin);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] QRectF PlotArea() const;
  [[nodiscard]] QRectF Lane(bool internalSync) const;
  [[nodiscard]] double PixelOf(double rateHz) const;
  void DrawAxis(QPainter& painter) const;
  void DrawLaneName(QPainter& painter, bool internalSync) const;
  void DrawMark(QPainter& painter, double rateHz, const QString& label, bool labelLeft) const;
  void DrawBar(QPainter& painter, int bin) const;
  /// The names of the bars, lying or standing, where they fit and cover no other.
  void DrawLabels(QPainter& painter) const;
  void DrawLabel(QPainter& painter, const QRectF& place, const QString& text) const;
  void DrawProbe(QPainter& painter) const;
  void PointAt(int bin);
  void Describe();

  std::vector<FreqBinData> table_;
  std::optional<BinSpan> selected_;
  std::optional<BinSpan> pointedAt_;
  std::optional<double> probeHz_;
  int hovered_ = -1;
};

}  // namespace frame_rates
