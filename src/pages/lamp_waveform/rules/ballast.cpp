// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/ballast.h"

#include <algorithm>
#include <array>

namespace lamp_waveform {

std::span<const BallastMaker, 12> BallastMakers() {
  static constexpr std::array<BallastMaker, 12> makers{{
      {"Unknown", LampWaveform::kUnknownMaker},
      {"Philips_0", kAntiFlatterMaker},
      {"OSRAM_1", kSPulseMaker},
      {"Phoenix_2", 2},
      {"Phoenix_3", 3},
      {"Ushio_4", 4},
      {"Perkin-Elmer_5", 5},
      {"Perkin-Elmer_6", 6},
      {"GE_7", 7},
      {"GloryPraise_8", 8},
      {"Iwasaki Electric Co. LTD_9", 9},
      {"Wavien_170", 170},
  }};
  return makers;
}

std::optional<std::size_t> MakerPosition(std::uint8_t code) {
  const auto makers = BallastMakers();
  const auto found = std::ranges::find(makers, code, &BallastMaker::code);
  if (found == makers.end()) return std::nullopt;
  return static_cast<std::size_t>(found - makers.begin());
}

bool StoreBallast(LampWaveform& attributes, bool uart, std::optional<std::size_t> maker,
                  std::uint8_t waveformIndex) {
  LampWaveform edited = attributes;
  // Any flag but 0 is a ticked box; a box that was not touched keeps the stored one.
  const bool wasUart = attributes.GetUARTFlag() != 0;
  const std::int32_t flag = uart == wasUart ? attributes.GetUARTFlag() : (uart ? 1 : 0);
  edited.SetUARTparams(
      flag, maker ? BallastMakers()[*maker].code : attributes.GetBallastMakerCode(), waveformIndex);
  if (edited == attributes) return false;
  attributes = edited;
  return true;
}

}  // namespace lamp_waveform
