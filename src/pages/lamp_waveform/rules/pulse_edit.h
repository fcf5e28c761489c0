// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "model/pulse_info.h"
#include "pages/lamp_waveform/rules/pulse_units.h"

namespace lamp_waveform {

/// The stored pulse with what the dialog was left with, converted at that rate. A value that is
/// still as the dialog shows the stored one keeps its stored number.
[[nodiscard]] PulseInfo EditedPulse(const PulseInfo& stored, bool isPulse,
                                    const PulseValues& values, double rateHz);

}  // namespace lamp_waveform
