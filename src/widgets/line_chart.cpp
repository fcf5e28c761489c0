// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/line_chart.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <functional>

#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "widgets/chart_data.h"
#include "widgets/chart_plot.h"
#include "widgets/rules/chart_range.h"

namespace GUI {

namespace {

constexpr double kZoomStep = 0.8;
constexpr double kPanStep = 0.1;
/// How near the mouse must come to a point, in pixels.
constexpr double kReach = 24.0;

QString ReadOutLine(const QString& title, const QString& fallback, double value) {
  return QStringLiteral("%1: %2").arg(title.isEmpty() ? fallback : title,
                                      QString::number(value, 'g', 6));
}

}  // namespace

struct LineChart::Private {
  struct AxisState {
    QString title;
    Scale scale = Scale::kLinear;
    std::optional<Range> home;
  };

  explicit Private(LineChart& owner) : chart(owner), plot(new ChartPlot(&owner)) {}

  AxisState& State(Axis axis) { return axis == Axis::kX ? x : y; }
  void Refresh();
  void ShowCursor();
  [[nodiscard]] Place Nearest(const QPointF& pixel) const;
  void Hover(const QPointF& pixel);
  void Move(Place (ChartData::*how)(Place, int) const, int step);
  void AddActions();
  void AskAndExport(const QString& suffix, const std::function<bool(const QString&)>& save) const;
  template <class Save>
  bool ExportInLight(Save save);

  LineChart& chart;
  ChartPlot* plot = nullptr;
  ChartData data;
  AxisState x, y;
  Place cursor;
  /// The view shows all until a person changes it.
  bool atHome = true;
};

/// Brings what changed to the screen.
void LineChart::Private::Refresh() {
  plot->Dress(ChartTheme::Of(chart.palette()), chart.font());
  if (!data.Holds(cursor)) cursor = {};
  if (atHome) chart.ShowAll();
  ShowCursor();
}

void LineChart::Private::ShowCursor() {
  if (data.Holds(cursor)) {
    plot->ShowCursor(data.At(cursor), chart.CursorText());
  } else {
    plot->HideCursor();
  }
}

LineChart::Place LineChart::Private::Nearest(const QPointF& pixel) const {
  Place nearest;
  double least = kReach * kReach;
  for (int s = 0; s < static_cast<int>(data.series.size()); ++s) {
    const QList<QPointF>& points = data.series[static_cast<std::size_t>(s)].points;
    for (int i = 0; i < points.size(); ++i) {
      const QPointF away = plot->Pixel(points[i]) - pixel;
      const double distance = QPointF::dotProduct(away, away);
      if (distance >= least) continue;
      least = distance;
      nearest = {s, i};
    }
  }
  return nearest;
}

void LineChart::Private::Hover(const QPointF& pixel) {
  const Place near = Nearest(pixel);
  if (near == cursor) return;
  chart.SetCursor(near);
  emit chart.pointHovered(near.series, near.index);
}

void LineChart::Private::Move(Place (ChartData::*how)(Place, int) const, int step) {
  const Place to = data.Holds(cursor) ? (data.*how)(cursor, step) : data.First();
  if (!data.Holds(to)) return;
  plot->Reveal(data.At(to));
  chart.SetCursor(to);
}

void LineChart::Private::AddActions() {
  const auto add = [this](const QString& text, const QList<QKeySequence>& keys, auto run) {
    auto* action = new QAction(text, &chart);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    QObject::connect(action, &QAction::triggered, &chart, run);
    chart.addAction(action);
  };
  add(tr("Zoom in"), {Qt::Key_Plus, Qt::Key_Equal}, [this] { chart.Zoom(kZoomStep); });
  add(tr("Zoom out"), {Qt::Key_Minus}, [this] { chart.Zoom(1 / kZoomStep); });
  add(tr("Show all"), {Qt::Key_Home}, [this] { chart.ShowAll(); });
  add(tr("Copy picture"), {QKeySequence::Copy},
      [this] { QGuiApplication::clipboard()->setPixmap(plot->Picture()); });
  add(tr("Save as PNG..."), {}, [this] {
    AskAndExport(QStringLiteral("png"),
                 [this](const QString& file) { return chart.ExportPng(file, plot->size(), 2.0); });
  });
  add(tr("Save as PDF..."), {}, [this] {
    AskAndExport(QStringLiteral("pdf"),
                 [this](const QString& file) { return chart.ExportPdf(file, plot->size()); });
  });
}

void LineChart::Private::AskAndExport(const QString& suffix,
                                      const std::function<bool(const QString&)>& save) const {
  QFileDialog dialog(&chart, tr("Save the chart"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  dialog.setNameFilter(QStringLiteral("*.") + suffix);
  if (RunModal(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString file = dialog.selectedFiles().front();
  if (save(file)) return;
  ShowMessageBox(tr("The file %1 could not be written.").arg(file).toStdString(), {},
                 msgbox::kIconError);
}

template <class Save>
bool LineChart::Private::ExportInLight(Save save) {
  plot->Dress(ChartTheme::Light(), chart.font());
  const bool saved = save();
  plot->Dress(ChartTheme::Of(chart.palette()), chart.font());
  return saved;
}

LineChart::LineChart(QWidget* parent) : QWidget(parent), d_(std::make_unique<Private>(*this)) {
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* layout = new QVBoxLayout(this);
  // Room for the frame that shows the focus.
  layout->setContentsMargins(2, 2, 2, 2);
  layout->addWidget(d_->plot);
  d_->AddActions();
  connect(d_->plot, &ChartPlot::viewDragged, this, [this] {
    d_->atHome = false;
    d_->ShowCursor();
  });
  connect(d_->plot, &ChartPlot::hovered, this, [this](QPointF pixel) { d_->Hover(pixel); });
  connect(d_->plot, &ChartPlot::clicked, this, [this](QPointF pixel) {
    const Place near = d_->Nearest(pixel);
    if (near.series >= 0) emit pointClicked(near.series, near.index);
  });
  connect(d_->plot, &ChartPlot::doubleClicked, this, &LineChart::ShowAll);
  d_->Refresh();
}

LineChart::~LineChart() = default;

void LineChart::SetTitle(const QString& title) {
  d_->plot->SetTitle(title);
  d_->Refresh();
}

void LineChart::SetAxisTitle(Axis axis, const QString& title) {
  d_->State(axis).title = title;
  d_->plot->SetAxisTitle(axis, title);
  d_->Refresh();
}

void LineChart::SetScale(Axis axis, Scale scale) {
  Private::AxisState& state = d_->State(axis);
  state.scale = scale;
  const bool logarithmic = scale == Scale::kLogarithmic;
  if (state.home && !IsChartRange({state.home->lower, state.home->upper}, logarithmic)) {
    state.home.reset();
  }
  d_->plot->SetScale(axis, scale);
  d_->atHome = true;
  d_->Refresh();
}

bool LineChart::SetHomeRange(Axis axis, std::optional<Range> range) {
  Private::AxisState& state = d_->State(axis);
  const bool logarithmic = state.scale == Scale::kLogarithmic;
  if (range && !IsChartRange({range->lower, range->upper}, logarithmic)) return false;
  state.home = range;
  d_->Refresh();
  return true;
}

LineChart::Range LineChart::VisibleRange(Axis axis) const { return d_->plot->View(axis); }

void LineChart::SetLegendVisible(bool visible) {
  d_->plot->SetLegendVisible(visible);
  d_->Refresh();
}

int LineChart::AddSeries(const QString& name, const QList<QPointF>& points, Style style,
                         const QColor& color) {
  d_->data.series.push_back({name, points, style, color});
  d_->plot->AddSeries(d_->data.series.back());
  d_->Refresh();
  return SeriesCount() - 1;
}

void LineChart::SetPoints(int series, const QList<QPointF>& points) {
  ChartSeries& changed = d_->data.series.at(static_cast<std::size_t>(series));
  changed.points = points;
  d_->plot->ReplaceSeries(series, changed);
  d_->Refresh();
}

QList<QPointF> LineChart::Points(int series) const {
  return d_->data.series.at(static_cast<std::size_t>(series)).points;
}

int LineChart::SeriesCount() const { return static_cast<int>(d_->data.series.size()); }

void LineChart::AddBand(Axis axis, Range range, const QString& name) {
  d_->plot->AddBand(axis, range, name);
  d_->Refresh();
}

void LineChart::AddArea(const QString& name, const QList<QPointF>& lower,
                        const QList<QPointF>& upper) {
  d_->data.others << lower << upper;
  d_->plot->AddArea(name, lower, upper);
  d_->Refresh();
}

void LineChart::AddMarker(Axis axis, double value, const QString& label) {
  d_->plot->AddMarker(axis, value, label);
  d_->Refresh();
}

void LineChart::AddLabel(QPointF where, const QString& text) {
  d_->plot->AddLabel(where, text);
  d_->Refresh();
}

void LineChart::Clear() {
  d_->data = {};
  d_->plot->Clear();
  d_->atHome = true;
  d_->Refresh();
}

void LineChart::ShowAll() {
  for (const Axis axis : {Axis::kX, Axis::kY}) {
    const Private::AxisState& state = d_->State(axis);
    d_->plot->SetView(axis, state.home ? *state.home : d_->data.FittingRange(axis, state.scale));
  }
  d_->atHome = true;
  d_->ShowCursor();
}

void LineChart::Zoom(double factor) { d_->plot->ZoomView(factor); }

void LineChart::Pan(double xShare, double yShare) {
  d_->plot->PanView(Axis::kX, xShare);
  d_->plot->PanView(Axis::kY, yShare);
}

void LineChart::SetCursor(Place place) {
  d_->cursor = d_->data.Holds(place) ? place : Place{};
  d_->ShowCursor();
  setAccessibleDescription(CursorText());
}

LineChart::Place LineChart::Cursor() const { return d_->cursor; }

QString LineChart::CursorText() const {
  if (!d_->data.Holds(d_->cursor)) return {};
  const QPointF point = d_->data.At(d_->cursor);
  QStringList lines{ReadOutLine(d_->x.title, QStringLiteral("x"), point.x()),
                    ReadOutLine(d_->y.title, QStringLiteral("y"), point.y())};
  const QString& name = d_->data.series[static_cast<std::size_t>(d_->cursor.series)].name;
  if (!name.isEmpty()) lines.prepend(name);
  return lines.join(u'\n');
}

bool LineChart::ExportPng(const QString& file, QSize size, double scale) const {
  return d_->ExportInLight([&] { return d_->plot->SavePng(file, size, scale); });
}

bool LineChart::ExportPdf(const QString& file, QSize size) const {
  return d_->ExportInLight([&] { return d_->plot->SavePdf(file, size); });
}

QSize LineChart::sizeHint() const { return {480, 300}; }

QSize LineChart::minimumSizeHint() const { return {200, 140}; }

void LineChart::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const bool looks = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
  if (looks && d_) d_->Refresh();
}

void LineChart::keyPressEvent(QKeyEvent* event) {
  const bool pans = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Left:
      return pans ? Pan(-kPanStep, 0) : d_->Move(&ChartData::Along, -1);
    case Qt::Key_Right:
      return pans ? Pan(kPanStep, 0) : d_->Move(&ChartData::Along, 1);
    case Qt::Key_Up:
      return pans ? Pan(0, kPanStep) : d_->Move(&ChartData::Across, -1);
    case Qt::Key_Down:
      return pans ? Pan(0, -kPanStep) : d_->Move(&ChartData::Across, 1);
    default:
      break;
  }
  const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!d_->data.Holds(d_->cursor) || (!enters && event->key() != Qt::Key_Escape)) {
    return QWidget::keyPressEvent(event);
  }
  if (enters) emit pointClicked(d_->cursor.series, d_->cursor.index);
  if (!enters) SetCursor({});
}

void LineChart::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  d_->plot->SetWheelZooms(true);
  update();
}

void LineChart::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  // The wheel scrolls the page again.
  d_->plot->SetWheelZooms(false);
  update();
}

void LineChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool focused = hasFocus();
  painter.setPen(
      QPen(palette().color(focused ? QPalette::Highlight : QPalette::Mid), focused ? 2 : 1));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace GUI
