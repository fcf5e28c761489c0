// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "waveforms.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

namespace bench {

namespace {

constexpr std::size_t kPulsesPerWaveform = 24;
constexpr std::size_t kWaveformsPerEntry = 50;

PulseInfo MakePulse(std::mt19937& random, std::size_t index) {
  const auto draw = [&](unsigned steps) { return static_cast<double>(random() % steps); };
  const std::string segment =
      std::string(1, "RGBWCMY"[index % 7]) + '-' + std::to_string(index / 7);
  PulseInfo pulse(random() % 3 != 0, segment, 1.0 + draw(100) / 100, draw(40) / 4, draw(40) / 4,
                  draw(900) / 10);
  pulse.m_versionnum = 1;
  return pulse;
}

LampWaveFormData MakeWaveform(std::mt19937& random, std::size_t number, std::size_t pulses) {
  LampWaveFormData waveform;
  waveform.WaveFormTitle = "Waveform " + std::to_string(number);
  waveform.CWType = "RGBWCY";
  waveform.Attributes.SetUARTparams(1, 0, static_cast<std::uint8_t>(number % 32));
  waveform.Attributes.PulseLength = 312.5;
  for (std::size_t i = 0; i < pulses; ++i) waveform.VecPulses.push_back(MakePulse(random, i));
  return waveform;
}

}  // namespace

Waveforms MakeWaveforms(std::size_t pulses) {
  std::mt19937 random(20240229);
  Waveforms made;
  for (std::size_t number = 0; pulses > 0; ++number) {
    if (number % kWaveformsPerEntry == 0) {
      const std::size_t entry = made.size();
      made.push_back(
          {"Group " + std::to_string(entry / 4), 1.0 + static_cast<double>(entry % 4) / 2, {}});
    }
    const std::size_t now = std::min(pulses, kPulsesPerWaveform);
    made.back().LWData.push_back(MakeWaveform(random, number, now));
    pulses -= now;
  }
  return made;
}

}  // namespace bench
