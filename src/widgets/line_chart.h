// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>
#include <QWidget>
#include <memory>
#include <optional>

namespace GUI {

/// A technical line chart: series, bands, marker lines and labels on two titled axes, with a
/// legend, zoom, pan and a cursor that reads values. Everything is reachable by keyboard: Left and
/// Right move the cursor along a series, Up and Down change the series, with Ctrl they pan; + and -
/// zoom, Home shows all, Enter clicks the point at the cursor, Escape hides the cursor. The mouse
/// drags the view, with Shift it zooms into a rectangle; the wheel zooms while the chart has the
/// focus. Colors follow the palette; series differ in dash and marker too. Until a person zooms or
/// pans, the view shows all.
class LineChart : public QWidget {
  Q_OBJECT

 public:
  enum class Axis { kX, kY };
  enum class Scale { kLinear, kLogarithmic };
  enum class Style { kLine, kSteps, kBars };

  struct Range {
    double lower = 0.0;
    double upper = 1.0;
  };
  /// A place on a series; series -1 when there is none.
  struct Place {
    int series = -1;
    int index = -1;
    bool operator==(const Place&) const = default;
  };

  explicit LineChart(QWidget* parent = nullptr);
  ~LineChart() override;

  void SetTitle(const QString& title);
  void SetAxisTitle(Axis axis, const QString& title);
  /// On a logarithmic axis only values above 0 are drawn.
  void SetScale(Axis axis, Scale scale);
  /// What "show all" shows of that axis; nothing (the default) fits the data. The range must have
  /// lower < upper, and 0 < lower on a logarithmic axis, else it is not taken and false returned.
  bool SetHomeRange(Axis axis, std::optional<Range> range);
  [[nodiscard]] Range VisibleRange(Axis axis) const;
  void SetLegendVisible(bool visible);

  /// Adds a series and returns its number, counted from 0. Points are drawn in the order of their
  /// x; a NaN breaks the line. An empty name keeps it out of the legend. A series that stands for
  /// something with a color is drawn in that one, made darker or lighter where the background
  /// would hide it.
  int AddSeries(const QString& name, const QList<QPointF>& points, Style style = Style::kLine,
                const QColor& color = {});
  /// Replaces the points of a series. Throws std::out_of_range when there is no such series, as
  /// Points does.
  void SetPoints(int series, const QList<QPointF>& points);
  [[nodiscard]] QList<QPointF> Points(int series) const;
  [[nodiscard]] int SeriesCount() const;
  /// Fills the range of an axis across the whole plot.
  void AddBand(Axis axis, Range range, const QString& name = {});
  /// Fills the area between two curves.
  void AddArea(const QString& name, const QList<QPointF>& lower, const QList<QPointF>& upper);
  /// A line across the plot at a value of that axis: kX gives a vertical line.
  void AddMarker(Axis axis, double value, const QString& label = {});
  /// A text whose anchor is in axis coordinates.
  void AddLabel(QPointF where, const QString& text);
  /// Removes series, bands, areas, markers and labels.
  void Clear();

  /// Shows the home range of both axes.
  void ShowAll();
  /// Zooms about the middle of the plot; a factor below 1 shows less.
  void Zoom(double factor);
  /// Moves the view by shares of what is visible.
  void Pan(double xShare, double yShare);

  /// Puts the cursor on a point of a series (-1: hides it) and shows what it reads.
  void SetCursor(Place place);
  [[nodiscard]] Place Cursor() const;
  /// What the cursor reads, as shown: series name and both values.
  [[nodiscard]] QString CursorText() const;

  /// Writes a picture in light colors; false when the file cannot be written.
  bool ExportPng(const QString& file, QSize size, double scale = 1.0) const;
  bool ExportPdf(const QString& file, QSize size) const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 signals:
  /// The point nearest to the mouse when it is close to one, otherwise -1, -1.
  void pointHovered(int series, int index);
  void pointClicked(int series, int index);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Private;
  std::unique_ptr<Private> d_;
};

}  // namespace GUI
