// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>

#include "model/gui_inputs_data.h"
#include "pages/lamp_waveform/rules/pulse_units.h"

/// The rules of the pulse dialog and of what comes of it.
namespace lamp_waveform {

inline constexpr double kMaxAmplitudePercent = 1000.0;
inline constexpr double kMaxDurationUs = 10000.0;

/// Why the values make no pulse at all: an amplitude of 100 % or no duration.
[[nodiscard]] bool IsNoPulse(const PulseValues& values) noexcept;
inline constexpr const char* kAddRefusal =
    "Inputs are not valid. Pulse Amplitude should not be 100% and overall pulse width should be "
    "greater than 0\n No pulse added";
inline constexpr const char* kEditQuestion =
    "Pulse Amplitude should not be 100 % and overall pulse width should be greater than 0 for "
    "valid Pulse\nPulse will be deleted\nDo you want to continue?";
inline constexpr const char* kDeletePulseQuestion =
    "Are you sure you want to delete the current pulse?";
inline constexpr const char* kAmplitudeCaption = "Amplitude Error";

/// Whether an amplitude in percent lies within the limits, bounds included.
[[nodiscard]] bool IsDark(const VIDarkPulseInfo& limits, double amplitude) noexcept;

/// How the dialog opens.
struct PulseDialogStart {
  PulseValues values;
  bool darkPulseMode = false;
};
/// To add a pulse: a dark pulse of the group's limits where dark pulses are applied.
[[nodiscard]] PulseDialogStart StartAdding(const PCGroup& group, bool applyDarkPulse);
/// To edit a pulse, at the rate in force. Where dark pulses are applied an amplitude below the
/// limits is raised to the least of them.
[[nodiscard]] PulseDialogStart StartEditing(const PulseInfo& pulse, const PCGroup& group,
                                            bool applyDarkPulse);

/// The range beside the amplitude when the dialog opens, and after its check box was clicked.
[[nodiscard]] std::string OpeningRangeText(const VIDarkPulseInfo& limits, double amplitude);
[[nodiscard]] std::string ClickedRangeText(const VIDarkPulseInfo& limits, bool dark);

/// What the check box of the dialog makes of the values when it is clicked.
void SetDark(const VIDarkPulseInfo& limits, bool dark, PulseValues& values);

/// The message for an amplitude that the check box's state does not allow; the amplitude is then
/// replaced by the nearest rule. Nothing when it passes.
[[nodiscard]] std::optional<std::string> CheckAmplitude(const VIDarkPulseInfo& limits, bool dark,
                                                        double& amplitude);

}  // namespace lamp_waveform
