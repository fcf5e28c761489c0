// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/spectra_charts.h"

#include <algorithm>

#include "host/data/lamp_optics_data.h"
#include "pages/lamp_optics/rules/library.h"
#include "pages/lamp_optics/rules/model_curve.h"
#include "pages/lamp_optics/rules/spectra.h"
#include "widgets/line_chart.h"

namespace lamp_optics {

namespace {

using GUI::LineChart;
using spectral_curve::Curve;

/// More points than a chart has pixels in a row.
constexpr std::size_t kMostPoints = 4000;
constexpr LineChart::Range kVisibleNm{360, 850};
constexpr double kTopMargin = 1.05;
/// A name may be longer than the legend is wide.
constexpr int kLongestName = 36;

QString LegendName(const std::string& name) {
  const QString text = QString::fromStdString(name);
  return text.size() <= kLongestName ? text : text.left(kLongestName - 1) + QChar(0x2026);
}

QList<QPointF> PointsOf(const Curve& curve) {
  QList<QPointF> points;
  points.reserve(static_cast<qsizetype>(curve.size()));
  for (const auto& point : curve) points << QPointF(point.wavelength, point.value);
  return points;
}

bool SameName(const NamedCurve& a, const NamedCurve& b) { return a.name == b.name; }

bool SamePoint(const spectral_curve::Point& a, const spectral_curve::Point& b) {
  return a.wavelength == b.wavelength && a.value == b.value;
}

template <class Record>
std::string NameOf(const Record& record) {
  return record.Name.empty() ? "Unnamed" : record.Name;
}

}  // namespace

SpectraChart::SpectraChart(LineChart& chart, const char* valueTitle, double leastTop)
    : chart_(&chart), leastTop_(leastTop) {
  chart.SetAxisTitle(LineChart::Axis::kX, QStringLiteral("Wavelength (nm)"));
  chart.SetAxisTitle(LineChart::Axis::kY, QString::fromLatin1(valueTitle));
}

SpectraChart LampChart(LineChart& chart) { return {chart, "Relative power", 0.0}; }

SpectraChart OpticsChart(LineChart& chart) { return {chart, "Transmission", kTopMargin}; }

void SpectraChart::Draw(std::vector<NamedCurve> curves) {
  SetHome(curves);
  if (!std::ranges::equal(curves, drawn_, SameName)) {
    chart_->Clear();
    drawn_.clear();
    for (const NamedCurve& each : curves) {
      chart_->AddSeries(LegendName(each.name), PointsOf(each.curve));
    }
    chart_->ShowAll();
  } else {
    Replace(curves);
  }
  drawn_ = std::move(curves);
}

/// The visible light, and what the curves need beside; values from 0 on where none is below.
void SpectraChart::SetHome(const std::vector<NamedCurve>& curves) {
  LineChart::Range wavelengths = kVisibleNm;
  double bottom = 0, top = 0;
  for (const NamedCurve& each : curves) {
    for (const auto& point : each.curve) {
      wavelengths.lower = std::min(wavelengths.lower, point.wavelength);
      wavelengths.upper = std::max(wavelengths.upper, point.wavelength);
      bottom = std::min(bottom, point.value);
      top = std::max(top, point.value);
    }
  }
  chart_->SetHomeRange(LineChart::Axis::kX, wavelengths);
  const LineChart::Range values{0, std::max(leastTop_, kTopMargin * top)};
  const bool isFromZero = bottom >= 0 && values.upper > 0;
  chart_->SetHomeRange(LineChart::Axis::kY, isFromZero ? std::optional(values) : std::nullopt);
}

void SpectraChart::Replace(const std::vector<NamedCurve>& curves) {
  for (std::size_t i = 0; i < curves.size(); ++i) {
    if (std::ranges::equal(curves[i].curve, drawn_[i].curve, SamePoint)) continue;
    chart_->SetPoints(static_cast<int>(i), PointsOf(curves[i].curve));
  }
}

std::vector<NamedCurve> LampCurves(const LampOpticsData& data) {
  const SLampRecord* lamp = CurrentLamp(data.Lamp);
  const SOpticsRecord* optics = CurrentOptics(data.Optics);
  std::vector<NamedCurve> curves;
  if (!lamp) return curves;
  const Curve response = CurveOf(lamp->Response);
  curves.push_back({NameOf(*lamp), Thinned(response, kMostPoints)});
  if (!optics) return curves;
  const Curve product = Product(response, CurveOf(optics->Response));
  curves.push_back({"through " + NameOf(*optics), Thinned(product, kMostPoints)});
  return curves;
}

std::vector<NamedCurve> OpticsCurves(const OpticsData& data, const OpticsModel& model) {
  std::vector<NamedCurve> curves{{"Optics model", ModelCurve(model)}};
  if (const SOpticsRecord* optics = CurrentOptics(data)) {
    curves.push_back({NameOf(*optics), Thinned(CurveOf(optics->Response), kMostPoints)});
  }
  return curves;
}

}  // namespace lamp_optics
