// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "waveforms.h"

#include <algorithm>
#include <random>

namespace bench {

namespace {

constexpr std::size_t kPulsesPerWaveform = 24;
constexpr std::size_t kWaveformsPerList = 50;

Pulse MakePulse(std::mt19937& random, std::size_t index) {
  const auto draw = [&](unsigned steps) { return static_cast<double>(random() % steps); };
  const bool isPulse = random() % 3 != 0;
  return {.version = 1,
          .isPulse = isPulse,
          .segment = std::string(1, "RGBWCMY"[index % 7]) + '-' + std::to_string(index / 7),
          .amplitude = 1.0 + draw(100) / 100,
          .leadEdge = draw(40) / 4,
          .trailEdge = draw(40) / 4,
          .width = draw(900) / 10};
}

Waveform MakeWaveform(std::mt19937& random, std::size_t number, std::size_t pulses) {
  Waveform waveform{.title = "Waveform " + std::to_string(number),
                    .wheel = "RGBWCY",
                    .ballast = {.pulseRatio = 1.15, .pulseLength = 3.5},
                    .pulses = {}};
  for (std::size_t i = 0; i < pulses; ++i) waveform.pulses.push_back(MakePulse(random, i));
  return waveform;
}

}  // namespace

Waveforms MakeWaveforms(std::size_t pulses) {
  std::mt19937 random(20240229);
  Waveforms made;
  for (std::size_t number = 0; pulses > 0; ++number) {
    if (number % kWaveformsPerList == 0) {
      const std::size_t list = made.lists.size();
      made.lists.push_back({.group = "Group " + std::to_string(list / 4),
                            .spinFactor = 1.0 + static_cast<double>(list % 4) / 2,
                            .waveforms = {}});
    }
    const std::size_t now = std::min(pulses, kPulsesPerWaveform);
    made.lists.back().waveforms.push_back(MakeWaveform(random, number, now));
    pulses -= now;
  }
  return made;
}

std::size_t CountPulses(const Waveforms& waveforms) {
  std::size_t count = 0;
  for (const WaveformList& list : waveforms.lists) {
    for (const Waveform& each : list.waveforms) count += each.pulses.size();
  }
  return count;
}

}  // namespace bench
