// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

#include "archive/nvp.h"
#include "model/lamp_wave_form_data.h"

/// The waveforms of one pair of group type and spin factor.
struct LampWaveFormDB {
  std::string SeqGrpName;  ///< a group type's title
  double SpinFactor = 0.0;
  std::vector<LampWaveFormData> LWData;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("SeqGrpName", SeqGrpName);
    ar& zel::archive::nvp("SpinFactor", SpinFactor);
    ar& zel::archive::nvp("LWData", LWData);
  }
};
