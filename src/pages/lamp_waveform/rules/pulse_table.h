// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <string>

#include "model/pulse_info.h"

/// The texts of the pulse table.
namespace lamp_waveform {

inline constexpr std::array<const char*, 3> kPulseHeaders{"Segment", "Pulse", "Operation"};
inline constexpr const char* kNoSegmentsText =
    "No Timing/Color Wheel Segment data available.\n Select suitable Inputs to generate data";

[[nodiscard]] std::string PulseText(const PulseInfo& pulse);
[[nodiscard]] std::string OperationText(const PulseInfo& pulse);

/// The tool tip of a pulse's row. Without a reference rate (not above 0) durations stand in degrees
/// alone.
[[nodiscard]] std::string PulseDescription(const PulseInfo& pulse, double referenceRateHz);

/// How the table fits its rows and shows its scroll bar, given its number of pulses.
struct TableFit {
  bool expandRows;
  bool showScrollBar;
};
[[nodiscard]] TableFit FitOf(std::size_t pulses) noexcept;

}  // namespace lamp_waveform
