// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

#include "archive/nvp.h"
#include "host/data/aperture_lumens.h"
#include "host/data/spectral_point.h"

/// One lamp of the device's lamp library.
struct SLampRecord {
  std::vector<SpectralPoint> Response;
  double TotalLumens = 0.0;  ///< 0 to 500000
  std::string Name;          ///< UTF-8, at most 255 characters
  int OpticsFlag = 0;        ///< not 0: the response was measured behind optics
  std::vector<ApertureLumens> LumensVsAperture;
  double LampPower = -1.0;  ///< watt; -1 when it is not known
  std::vector<SpectralPoint> Recycling;
  bool RecyclingEnabled = false;

  /// A record without a response is a free place of the library.
  [[nodiscard]] bool InUse() const noexcept { return !Response.empty(); }
  [[nodiscard]] bool operator==(const SLampRecord&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Response", Response);
    ar& zel::archive::nvp("TotalLumens", TotalLumens);
    ar& zel::archive::nvp("Name", Name);
    ar& zel::archive::nvp("OpticsFlag", OpticsFlag);
    ar& zel::archive::nvp("LumensVsAperture", LumensVsAperture);
    ar& zel::archive::nvp("LampPower", LampPower);
    ar& zel::archive::nvp("Recycling", Recycling);
    ar& zel::archive::nvp("RecyclingEnabled", RecyclingEnabled);
  }
};
