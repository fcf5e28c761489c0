// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// The dark-pulse limits of a group type. Amplitudes are percent, lengths microseconds.
struct VIDarkPulseInfo {
  bool Enable = false;
  double MaxFallLength = 0.0;   ///< leading edge of a dark pulse
  double Jitter = 0.0;          ///< carried, not used
  double MinWidthLength = 0.0;  ///< width of a dark pulse
  double MaxRiseLength = 0.0;   ///< trailing edge of a dark pulse
  double MinAmplitude = 0.0;
  double MaxAmplitude = 0.0;
  double CWRate = 0.0;  ///< Hz; above 0 it takes the place of the group's reference rate

  [[nodiscard]] bool operator==(const VIDarkPulseInfo&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Enable", Enable);
    ar& zel::archive::nvp("MaxFallLength", MaxFallLength);
    ar& zel::archive::nvp("Jitter", Jitter);
    ar& zel::archive::nvp("MinWidthLength", MinWidthLength);
    ar& zel::archive::nvp("MaxRiseLength", MaxRiseLength);
    ar& zel::archive::nvp("MinAmplitude", MinAmplitude);
    ar& zel::archive::nvp("MaxAmplitude", MaxAmplitude);
    ar& zel::archive::nvp("CWRate", CWRate);
  }
};
