// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "pages/lamp_waveform/rules/pulse_units.h"

namespace lamp_waveform {

/// The pulse dialog's chart: gain over microseconds.
struct PulsePreview {
  std::vector<std::pair<double, double>> points;
  double xMinimum = 0.0;
  double xMaximum = 500.0;
  double yMinimum = 0.0;
  double yMaximum = 2.0;
};

/// The chart of the values, its last point at gain 1 and the right edge; the ranges end at the next
/// multiple of 50 microseconds and 0.5 gain. Nothing without a duration, nor for values that are
/// not finite: the chart then stays.
[[nodiscard]] std::optional<PulsePreview> MakePreview(const PulseValues& values);

/// The note under the chart.
[[nodiscard]] std::string PreviewNote(const PulseValues& values);

}  // namespace lamp_waveform
