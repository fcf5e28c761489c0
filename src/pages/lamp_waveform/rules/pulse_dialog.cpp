// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_dialog.h"

#include <cmath>

#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

using platform::Fill;
using platform::GeneralText;

constexpr double kNeutralPercent = 100.0;
constexpr double kTolerance = 0.01;

std::string AboveText(const VIDarkPulseInfo& limits) {
  return Fill("(>%g)", {GeneralText(limits.MaxAmplitude)});
}

std::string BetweenText(const char* pattern, const VIDarkPulseInfo& limits) {
  return Fill(pattern, {GeneralText(limits.MinAmplitude), GeneralText(limits.MaxAmplitude)});
}

void TakeDarkDurations(const VIDarkPulseInfo& limits, PulseValues& values) {
  values.leadingEdge = limits.MaxFallLength;
  values.trailingEdge = limits.MaxRiseLength;
  values.width = limits.MinWidthLength;
}

}  // namespace

bool IsNoPulse(const PulseValues& values) noexcept {
  const bool neutral = values.amplitude > kNeutralPercent - kTolerance &&
                       values.amplitude < kNeutralPercent + kTolerance;
  return neutral || std::abs(values.Duration()) < kTolerance;
}

bool IsDark(const VIDarkPulseInfo& limits, double amplitude) noexcept {
  return limits.MinAmplitude <= amplitude && amplitude <= limits.MaxAmplitude;
}

PulseDialogStart StartAdding(const PCGroup& group, bool applyDarkPulse) {
  PulseDialogStart start;
  const VIDarkPulseInfo& limits = group.VIDarkPulseInfo;
  if (!applyDarkPulse || !limits.Enable) return start;
  start.darkPulseMode = true;
  start.values.amplitude = limits.MinAmplitude;
  TakeDarkDurations(limits, start.values);
  return start;
}

PulseDialogStart StartEditing(const PulseInfo& pulse, const PCGroup& group, bool applyDarkPulse) {
  const VIDarkPulseInfo& limits = group.VIDarkPulseInfo;
  PulseDialogStart start{ValuesOf(pulse, RateInForce(group, applyDarkPulse)), limits.Enable};
  if (applyDarkPulse && limits.Enable && pulse.m_Amp < limits.MinAmplitude / 100) {
    start.values.amplitude = limits.MinAmplitude;
  }
  return start;
}

std::string OpeningRangeText(const VIDarkPulseInfo& limits, double amplitude) {
  return IsDark(limits, amplitude) ? BetweenText("(%g~%g)", limits) : AboveText(limits);
}

std::string ClickedRangeText(const VIDarkPulseInfo& limits, bool dark) {
  return dark ? BetweenText("(%g-%g)", limits) : AboveText(limits);
}

void SetDark(const VIDarkPulseInfo& limits, bool dark, PulseValues& values) {
  if (!dark) {
    values.amplitude = limits.MaxAmplitude + 1;
    return;
  }
  TakeDarkDurations(limits, values);
  if (!IsDark(limits, values.amplitude)) values.amplitude = limits.MinAmplitude;
}

std::optional<std::string> CheckAmplitude(const VIDarkPulseInfo& limits, bool dark,
                                          double& amplitude) {
  const auto refuse = [&](const char* pattern, double bound, double instead) {
    amplitude = instead;
    return Fill(pattern, {GeneralText(bound)});
  };
  if (!dark) {
    if (amplitude >= limits.MaxAmplitude) return std::nullopt;
    return refuse("The non-DP amplitude must be greater than %g.", limits.MaxAmplitude,
                  limits.MaxAmplitude + 1);
  }
  if (amplitude < limits.MinAmplitude) {
    return refuse("The DP amplitude must be greater than %g.", limits.MinAmplitude,
                  limits.MinAmplitude);
  }
  if (amplitude <= limits.MaxAmplitude) return std::nullopt;
  return refuse("The DP amplitude must be less than %g.", limits.MaxAmplitude, limits.MaxAmplitude);
}

}  // namespace lamp_waveform
