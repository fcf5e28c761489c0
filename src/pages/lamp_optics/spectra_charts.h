// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

#include "host/calc/spectral_curve.h"

class LampOpticsData;
class OpticsData;
struct OpticsModel;

namespace GUI {
class LineChart;
}

namespace lamp_optics {

/// A curve of a chart, thinned for drawing.
struct NamedCurve {
  std::string name;
  spectral_curve::Curve curve;
};

/// Draws curves into a chart; what is drawn already stays, and with it the part that a person
/// zoomed into. Values are the data's own, so a cursor reads what was in the file.
class SpectraChart {
 public:
  SpectraChart() = default;
  /// The chart outlives this. It shows values up to `leastTop` or more.
  SpectraChart(GUI::LineChart& chart, const char* valueTitle, double leastTop);

  void Draw(std::vector<NamedCurve> curves);

 private:
  void Replace(const std::vector<NamedCurve>& curves);
  void SetHome(const std::vector<NamedCurve>& curves);

  GUI::LineChart* chart_ = nullptr;
  double leastTop_ = 0;
  std::vector<NamedCurve> drawn_;
};

/// The charts of lamps and of optics.
[[nodiscard]] SpectraChart LampChart(GUI::LineChart& chart);
[[nodiscard]] SpectraChart OpticsChart(GUI::LineChart& chart);

/// The current lamp's response, and what the current optics leave of it.
[[nodiscard]] std::vector<NamedCurve> LampCurves(const LampOpticsData& data);
/// The transmission of the current optics and of a parametric model.
[[nodiscard]] std::vector<NamedCurve> OpticsCurves(const OpticsData& data,
                                                   const OpticsModel& model);

}  // namespace lamp_optics
