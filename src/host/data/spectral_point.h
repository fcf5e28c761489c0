// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// One point of a spectrum.
struct SpectralPoint {
  int Wavelength = 0;  ///< nm
  double Value = 0.0;  ///< lamp: relative power; optics: transmission

  [[nodiscard]] bool operator==(const SpectralPoint&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Wavelength", Wavelength);
    ar& zel::archive::nvp("Value", Value);
  }
};
