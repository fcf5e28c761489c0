// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "archive/nvp.h"
#include "host/data/spoke_pulse.h"

/// What the ballast is told of a lamp waveform: its own settings and the compensation pulses.
class LampWaveform {
 public:
  static constexpr unsigned class_version = 1;
  /// The ballast maker code that stands for none.
  static constexpr std::uint8_t kUnknownMaker = 255;

  bool CompensationEnabled = false;
  double PulseLength = 500.0;               ///< microseconds at 60 Hz, above 0
  std::int32_t PulsePlateauRatio = 110;     ///< percent, above 100
  std::map<std::string, bool> SpokePulses;  ///< spoke name: whether it has a compensation pulse

  void SetUARTparams(std::int32_t uartFlag, std::uint8_t makerCode, std::uint8_t waveformIndex) {
    uart_flag_ = uartFlag;
    maker_code_ = makerCode;
    waveform_index_ = waveformIndex;
  }
  [[nodiscard]] std::int32_t GetUARTFlag() const noexcept { return uart_flag_; }
  [[nodiscard]] std::uint8_t GetBallastMakerCode() const noexcept { return maker_code_; }
  [[nodiscard]] std::uint8_t GetBallastWaveformIndex() const noexcept { return waveform_index_; }

  [[nodiscard]] bool operator==(const LampWaveform&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("UARTFlag", uart_flag_);
    ar& zel::archive::nvp("BallastMakerCode", maker_code_);
    ar& zel::archive::nvp("BallastWaveformIndex", waveform_index_);
    ar& zel::archive::nvp("CompensationEnabled", CompensationEnabled);
    ar& zel::archive::nvp("PulseLength", PulseLength);
    ar& zel::archive::nvp("PulsePlateauRatio", PulsePlateauRatio);
    std::vector<SpokePulse> spokes;
    for (const auto& [spoke, applied] : SpokePulses) spokes.push_back({spoke, applied});
    ar& zel::archive::nvp("SpokePulses", spokes);
    if constexpr (Archive::is_loading) {
      SpokePulses.clear();
      for (SpokePulse& entry : spokes) SpokePulses[std::move(entry.Spoke)] = entry.Applied;
    }
  }

 private:
  std::int32_t uart_flag_ = 0;
  std::uint8_t maker_code_ = kUnknownMaker;
  std::uint8_t waveform_index_ = 0;
};
