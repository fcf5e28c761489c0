// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "model/lamp_wave_form_db.h"

namespace bench {

/// The waveform database of the lamp waveform page.
using Waveforms = std::vector<LampWaveFormDB>;
inline constexpr const char* kElement = "LampWaveformDB";

/// The sizes that are measured, in pulses.
inline constexpr std::array<std::size_t, 3> kSizes{200, 10'000, 120'000};

/// A database of that many pulses: up to 50 waveforms of 24 pulses an entry. The numbers are what
/// people type: half of them need all 17 digits, half are exact.
[[nodiscard]] Waveforms MakeWaveforms(std::size_t pulses);

}  // namespace bench
