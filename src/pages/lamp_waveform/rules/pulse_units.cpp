// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_units.h"

#include <algorithm>
#include <cmath>

#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

constexpr double kMicroseconds = 1e6;
constexpr double kTurn = 360.0;
constexpr double kPercent = 100.0;
constexpr double kNoRate = -1.0;
constexpr int kFieldDigits = 10;

/// Percent of a stored ratio. A percentage that was entered with few decimals comes back as it was,
/// though its hundredth may be no double: it is compared with limits.
double PercentOf(double ratio) {
  constexpr double kDecimals = 1e9;
  const double percent = ratio * kPercent;
  const double entered = std::round(percent * kDecimals) / kDecimals;
  return entered / kPercent == ratio ? entered : percent;
}

}  // namespace

double ReferenceRate(const PCGroup& group) {
  const std::size_t count = std::min(group.Rates.size(), group.BitwSelectRateFlags.size());
  for (std::size_t i = 0; i < count; ++i) {
    if (group.BitwSelectRateFlags[i]) return group.Rates[i] > 0 ? group.Rates[i] : kNoRate;
  }
  return kNoRate;
}

double RateInForce(const PCGroup& group, bool applyDarkPulse) {
  const VIDarkPulseInfo& limits = group.VIDarkPulseInfo;
  const bool own = applyDarkPulse && limits.Enable && limits.CWRate > 0;
  return own ? limits.CWRate : ReferenceRate(group);
}

std::string NoRateMessage(const PCGroup& group) {
  return platform::Fill("The group type '%s' has no rate selected.", {group.Title});
}

double DegreesOf(double microseconds, double rateHz) noexcept {
  return microseconds / (kMicroseconds / rateHz) * kTurn;
}

double MicrosecondsOf(double degrees, double rateHz) noexcept {
  return degrees / kTurn * (kMicroseconds / rateHz);
}

std::string FieldText(double value) { return platform::GeneralText(value, kFieldDigits); }

PulseValues ValuesOf(const PulseInfo& pulse, double rateHz) {
  return {.amplitude = PercentOf(pulse.m_Amp),
          .leadingEdge = MicrosecondsOf(pulse.m_LeadEdge, rateHz),
          .trailingEdge = MicrosecondsOf(pulse.m_TrailEdge, rateHz),
          .width = MicrosecondsOf(pulse.m_Width, rateHz)};
}

PulseInfo MakePulse(bool isPulse, const std::string& key, const PulseValues& values,
                    double rateHz) {
  return PulseInfo(isPulse, key, values.amplitude / kPercent, DegreesOf(values.leadingEdge, rateHz),
                   DegreesOf(values.trailingEdge, rateHz), DegreesOf(values.width, rateHz));
}

}  // namespace lamp_waveform
