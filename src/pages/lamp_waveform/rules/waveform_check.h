// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/project/finding.h"
#include "model/gui_inputs_data.h"

namespace lamp_waveform {

/// What the rules say of the waveforms. Errors: titles, pulses and compensation that the page would
/// refuse, and dark-pulse limits that hold nothing. Warnings: what no selection reaches, pulses
/// that do nothing or have lost their segment, and group types without a rate.
[[nodiscard]] Findings CheckWaveforms(const GUIInputsData& data);

}  // namespace lamp_waveform
