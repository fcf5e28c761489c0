// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// What light a lamp brings through an aperture.
struct ApertureLumens {
  double Aperture = 0.0;
  double Lumens = 0.0;

  [[nodiscard]] bool operator==(const ApertureLumens&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Aperture", Aperture);
    ar& zel::archive::nvp("Lumens", Lumens);
  }
};
