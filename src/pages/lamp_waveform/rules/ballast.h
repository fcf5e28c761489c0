// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "host/data/lamp_waveform.h"

namespace lamp_waveform {

struct BallastMaker {
  const char* text;
  std::uint8_t code;
};

/// The makers in list order.
[[nodiscard]] std::span<const BallastMaker, 12> BallastMakers();
/// The first place of that code; nothing for a code that no listed maker has.
[[nodiscard]] std::optional<std::size_t> MakerPosition(std::uint8_t code);

/// The makers whose ballasts know compensation pulses.
inline constexpr std::uint8_t kAntiFlatterMaker = 0;
inline constexpr std::uint8_t kSPulseMaker = 1;
[[nodiscard]] constexpr bool HasCompensation(std::int32_t code) noexcept {
  return code == kAntiFlatterMaker || code == kSPulseMaker;
}

/// Stores the ballast settings; `maker` is a place in the list, nothing keeps the stored code. True
/// when the attributes changed.
[[nodiscard]] bool StoreBallast(LampWaveform& attributes, bool uart,
                                std::optional<std::size_t> maker, std::uint8_t waveformIndex);

}  // namespace lamp_waveform
