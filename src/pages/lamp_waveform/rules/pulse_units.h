// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "model/gui_inputs_data.h"

/// Pulses are stored in degrees of color wheel rotation and as gain ratios; people see microseconds
/// and percent.
namespace lamp_waveform {

/// A pulse as its dialog shows it.
struct PulseValues {
  double amplitude = 100.0;  ///< percent
  double leadingEdge = 0.0;  ///< microseconds, as the next two
  double trailingEdge = 0.0;
  double width = 0.0;

  [[nodiscard]] double Duration() const noexcept { return leadingEdge + trailingEdge + width; }
  [[nodiscard]] bool operator==(const PulseValues&) const = default;
};

/// The first of the group's rates that is selected, Hz; -1 without one that is above 0.
[[nodiscard]] double ReferenceRate(const PCGroup& group);
/// The rate that the dialog converts with: the dark-pulse limits' own rate where dark pulses are
/// applied and it is above 0, else the reference rate.
[[nodiscard]] double RateInForce(const PCGroup& group, bool applyDarkPulse);
/// What the pulse editor says when there is no rate to convert with.
[[nodiscard]] std::string NoRateMessage(const PCGroup& group);

/// One period of the rate spans 360 degrees. The rate is above 0.
[[nodiscard]] double DegreesOf(double microseconds, double rateHz) noexcept;
[[nodiscard]] double MicrosecondsOf(double degrees, double rateHz) noexcept;

/// A value in an entry field: up to 10 significant digits.
[[nodiscard]] std::string FieldText(double value);

[[nodiscard]] PulseValues ValuesOf(const PulseInfo& pulse, double rateHz);
[[nodiscard]] PulseInfo MakePulse(bool isPulse, const std::string& key, const PulseValues& values,
                                  double rateHz);

}  // namespace lamp_waveform
