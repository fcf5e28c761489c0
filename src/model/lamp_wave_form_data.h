// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

#include "archive/nvp.h"
#include "host/data/lamp_waveform.h"
#include "model/pulse_info.h"

/// One lamp drive waveform.
struct LampWaveFormData {
  std::string WaveFormTitle;  ///< unique within its pair of group type and spin factor
  std::string CWType;         ///< signature of the wheel that the pulses were derived for
  LampWaveform Attributes;
  std::vector<PulseInfo> VecPulses;  ///< one an eligible segment of the sequence timeline

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("WaveFormTitle", WaveFormTitle);
    ar& zel::archive::nvp("CWType", CWType);
    ar& zel::archive::nvp("Attributes", Attributes);
    ar& zel::archive::nvp("VecPulses", VecPulses);
  }
};
