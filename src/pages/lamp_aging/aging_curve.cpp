// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/aging_curve.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <cmath>
#include <limits>

#include "host/gui/slow_tool_tip.h"
#include "host/text/number_field.h"
#include "pages/lamp_aging/rules/curve.h"
#include "platform/text/fill.h"
#include "ui_aging_curve.h"
#include "widgets/focus_wheel.h"
#include "widgets/line_chart.h"

namespace lamp_aging {

namespace {

using Axis = GUI::LineChart::Axis;

constexpr double kBreak = std::numeric_limits<double>::quiet_NaN();
/// Free room beside and above the curve, as a share of it.
constexpr double kMargin = 0.06;

/// Shares spans out over as few lists as it takes for none of a list to run into the next: a series
/// of the chart draws its points by ascending feedback value.
template <class Span>
std::vector<std::vector<Span>> Lanes(const std::vector<Span>& spans) {
  std::vector<std::vector<Span>> lanes;
  for (const Span& span : spans) {
    const auto free = std::ranges::find_if(
        lanes, [&span](const auto& lane) { return lane.back().upper <= span.lower; });
    if (free == lanes.end()) {
      lanes.push_back({span});
    } else {
      free->push_back(span);
    }
  }
  return lanes;
}

/// Where two neighbouring bins both apply, between their amplitudes.
struct Overlap {
  int lower;
  int upper;
  double lowerAmplitude;
  double upperAmplitude;
};

std::vector<Overlap> Overlaps(const BinTable& table) {
  std::vector<Overlap> overlaps;
  for (const SharedValues& shared : FindSharedValues(table)) {
    if (shared.IsTouch()) continue;
    overlaps.push_back({shared.span.lower, shared.span.upper,
                        BinAt(table, shared.lowerBin)->m_avgPulseAmplitude,
                        BinAt(table, shared.upperBin)->m_avgPulseAmplitude});
  }
  return overlaps;
}

QString LimitText(const char* name, double amplitude) {
  return QString::fromStdString(std::string(name) + " " + AmplitudeText(amplitude));
}

}  // namespace

AgingCurve::AgingCurve(QWidget* parent) : QWidget(parent) {
  Ui::AgingCurve ui;
  ui.setupUi(this);
  chart_ = ui.chart;
  probeBox_ = ui.probe;
  probeSlider_ = ui.probeSlider;
  probeText_ = ui.probeText;
  chart_->SetAxisTitle(Axis::kX, QStringLiteral("Ballast feedback value"));
  chart_->SetAxisTitle(Axis::kY, QStringLiteral("Pulse amplitude ratio"));
  // The curve rises into the corner where the legend would be.
  chart_->SetLegendVisible(false);
  probeSlider_->setRange(0, kMaxFeedbackValue);
  GUI::TurnOnlyWithFocus(*probeSlider_);
  Framework::SetSlowToolTip(*probeBox_,
                            QStringLiteral("Type a feedback value, or drag the slider."));
  probeBox_->setText(QString::number(probe_));
  Draw();
  connect(probeBox_, &QLineEdit::textChanged, this, &AgingCurve::TakeTypedProbe);
  connect(probeSlider_, &QSlider::valueChanged, this,
          [this](int feedback) { probeBox_->setText(QString::number(feedback)); });
  connect(chart_, &GUI::LineChart::pointClicked, this, &AgingCurve::EmitClicked);
}

void AgingCurve::ShowFeedback(const BinTable& table, const Limits& limits) {
  feedback_ = true;
  table_ = table;
  limits_ = limits;
  Draw();
}

void AgingCurve::ShowNoFeedback(const BinTable& table, const Limits& limits) {
  feedback_ = false;
  table_ = table;
  limits_ = limits;
  Draw();
}

void AgingCurve::HighlightBin(std::optional<std::size_t> number) {
  if (number == selected_) return;
  selected_ = number;
  DrawSelection();
}

void AgingCurve::Draw() {
  chart_->Clear();
  binsOfSeries_.clear();
  DrawSteps();
  if (feedback_) DrawOverlaps();
  DrawLimits();
  DrawSelection();
  probeBox_->setEnabled(feedback_);
  probeSlider_->setEnabled(feedback_);
  TakeTypedProbe(probeBox_->text());
}

// The selection and the probe come second and third, so that their colors do not depend on how many
// series the bins take.
void AgingCurve::DrawSteps() {
  const auto lanes = Lanes(feedback_ ? CurveSteps(table_) : FlatStep());
  DrawLane(lanes.empty() ? std::vector<CurveStep>() : lanes.front(), QStringLiteral("Bins"));
  selectionSeries_ = chart_->AddSeries(QStringLiteral("Selected bin"), {});
  probeSeries_ = chart_->AddSeries(QStringLiteral("Probe"), {});
  for (std::size_t lane = 1; lane < lanes.size(); ++lane) {
    DrawLane(lanes[lane], QStringLiteral("Overlapping bins"));
  }
}

std::vector<CurveStep> AgingCurve::FlatStep() const {
  if (table_.empty()) return {};
  return {{0, 0, kMaxFeedbackValue, table_.begin()->m_avgPulseAmplitude}};
}

void AgingCurve::DrawLane(const std::vector<CurveStep>& lane, const QString& name) {
  QList<QPointF> points;
  std::vector<std::size_t> bins;
  for (const CurveStep& step : lane) {
    if (!points.isEmpty() && points.back().x() < step.lower) {
      points << QPointF(points.back().x(), kBreak);
      bins.push_back(bins.back());
    }
    points << QPointF(step.lower, step.amplitude) << QPointF(step.upper, step.amplitude);
    bins.insert(bins.end(), 2, step.bin);
  }
  binsOfSeries_[chart_->AddSeries(name, points)] = std::move(bins);
}

void AgingCurve::DrawOverlaps() {
  bool named = false;
  for (const std::vector<Overlap>& lane : Lanes(Overlaps(table_))) {
    QList<QPointF> below, above;
    for (const Overlap& overlap : lane) {
      for (const int end : {overlap.lower, overlap.upper}) {
        below << QPointF(end, overlap.lowerAmplitude);
        above << QPointF(end, overlap.upperAmplitude);
      }
      below << QPointF(overlap.upper, kBreak);
      above << QPointF(overlap.upper, kBreak);
    }
    chart_->AddArea(named ? QString() : QStringLiteral("Overlap"), below, above);
    named = true;
  }
}

// The curve rises: the lower limit has room for its name on the right, the upper one on the left.
void AgingCurve::DrawLimits() {
  chart_->AddMarker(Axis::kY, limits_.minAmplitude);
  chart_->AddMarker(Axis::kY, limits_.maxAmplitude);
  const double last = LastFeedback();
  chart_->AddLabel({0.85 * last, limits_.minAmplitude}, LimitText("Minimum", limits_.minAmplitude));
  chart_->AddLabel({0.25 * last, limits_.maxAmplitude}, LimitText("Maximum", limits_.maxAmplitude));
}

void AgingCurve::DrawSelection() {
  QList<QPointF> outline;
  if (feedback_ && selected_ && *selected_ < table_.size()) {
    const Bin& bin = *BinAt(table_, *selected_);
    const double lower = bin.m_lowerBallastVal, upper = bin.m_upperBallastVal;
    outline = {{lower, limits_.minAmplitude},
               {lower, bin.m_avgPulseAmplitude},
               {upper, bin.m_avgPulseAmplitude},
               {upper, limits_.minAmplitude}};
  }
  chart_->SetPoints(selectionSeries_, outline);
}

void AgingCurve::DrawProbe() {
  const double feedback = probe_;
  chart_->SetPoints(probeSeries_, feedback_ ? QList<QPointF>{{feedback, limits_.minAmplitude},
                                                             {feedback, limits_.maxAmplitude}}
                                            : QList<QPointF>{});
  SetHome();
}

double AgingCurve::LastFeedback() const {
  if (!feedback_) return kMaxFeedbackValue;
  int last = 1;
  for (const CurveStep& step : CurveSteps(table_)) last = std::max(last, step.upper);
  return last;
}

void AgingCurve::SetHome() {
  const double last = std::max(LastFeedback(), feedback_ ? probe_ : 0.0);
  double low = limits_.minAmplitude, high = limits_.maxAmplitude;
  for (const Bin& bin : table_) {
    low = std::min(low, bin.m_avgPulseAmplitude);
    high = std::max(high, bin.m_avgPulseAmplitude);
  }
  const double side = last * kMargin, room = std::max(high - low, 0.1) * kMargin;
  chart_->SetHomeRange(Axis::kX, GUI::LineChart::Range{-side, last + side});
  // The name of the upper limit stands above its line.
  chart_->SetHomeRange(Axis::kY, GUI::LineChart::Range{low - room, high + 2 * room});
}

void AgingCurve::TakeTypedProbe(const QString& text) {
  if (!feedback_) {
    probeText_->setText(QString::fromStdString(platform::Fill(
        "The ballast sends no feedback: the amplitude is always %.3f.",
        {AmplitudeText(table_.empty() ? 0.0 : table_.begin()->m_avgPulseAmplitude)})));
    return DrawProbe();
  }
  const auto typed = host::text::ReadIntegerField(text.toStdString(), {0, kMaxFeedbackValue});
  if (const auto* refusal = std::get_if<std::string>(&typed)) {
    probeText_->setText(QString::fromStdString(*refusal));
  } else {
    MoveProbe(static_cast<int>(std::get<long long>(typed)));
  }
}

void AgingCurve::MoveProbe(int feedback) {
  probe_ = feedback;
  const QSignalBlocker quiet(probeSlider_);
  probeSlider_->setValue(feedback);
  probeText_->setText(QString::fromStdString(ProbeText(table_, feedback)));
  DrawProbe();
}

void AgingCurve::EmitClicked(int series, int index) {
  const auto bins = binsOfSeries_.find(series);
  if (bins != binsOfSeries_.end())
    emit binClicked(bins->second.at(static_cast<std::size_t>(index)));
}

}  // namespace lamp_aging
