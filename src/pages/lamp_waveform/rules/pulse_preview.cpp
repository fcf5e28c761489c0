// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_preview.h"

#include <algorithm>
#include <cmath>

#include "host/calc/temporal_response.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

constexpr double kTimeStepUs = 50.0;
constexpr double kGainStep = 0.5;

/// The multiple of the step above the value, or the step itself below it.
double NextAbove(double value, double step) { return step * (1 - std::trunc(value / -step)); }

double GainMinimum(double least) {
  return least < 0 ? kGainStep * (-std::trunc(least / -kGainStep) - 1) : 0.0;
}

}  // namespace

std::optional<PulsePreview> MakePreview(const PulseValues& values) {
  TemporalResponse response;
  response.Load(values.leadingEdge, values.width, values.trailingEdge, values.amplitude / 100);
  const bool isFinite = std::isfinite(values.Duration()) && std::isfinite(values.amplitude);
  if (response.Count() == 0 || !isFinite) return std::nullopt;
  PulsePreview preview;
  for (std::size_t i = 0; i < response.Count(); ++i) {
    preview.points.emplace_back(response.Times()[i], response.Gains()[i]);
  }
  const auto [earliest, latest] = std::ranges::minmax(response.Times());
  const auto [least, most] = std::ranges::minmax(response.Gains());
  preview.xMinimum = earliest;
  preview.xMaximum = NextAbove(latest, kTimeStepUs);
  preview.yMinimum = GainMinimum(least);
  preview.yMaximum = NextAbove(most, kGainStep);
  preview.points.emplace_back(preview.xMaximum, 1.0);
  return preview;
}

std::string PreviewNote(const PulseValues& values) {
  return platform::Fill(
      "Note:\n      Pulses (0--%g) will be aligned with the end of sequence segment (See "
      "TimingChart Page for detailed\n      view of waveform).",
      {platform::GeneralText(values.leadingEdge + values.width)});
}

}  // namespace lamp_waveform
