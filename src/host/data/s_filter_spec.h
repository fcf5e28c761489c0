// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// The optical filter of a wheel segment. A new one passes what a page can describe: an even
/// transmission from 300 to 850 nm.
struct SFilterSpec {
  int Color = -1;                  ///< color code, the segment's
  double PeakTransmission = 0.95;  ///< 0 to 1
  double Sw50 = 300.0;             ///< nm, 300 to 850: half transmission at the short edge
  double Lw50 = 850.0;             ///< nm, 300 to 850: half transmission at the long edge
  double SwFactor = 0.0;           ///< 0 to 2: softness of the short edge
  double LwFactor = 0.0;           ///< 0 to 1: softness of the long edge

  [[nodiscard]] bool operator==(const SFilterSpec&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Color", Color);
    ar& zel::archive::nvp("PeakTransmission", PeakTransmission);
    ar& zel::archive::nvp("Sw50", Sw50);
    ar& zel::archive::nvp("Lw50", Lw50);
    ar& zel::archive::nvp("SwFactor", SwFactor);
    ar& zel::archive::nvp("LwFactor", LwFactor);
  }
};
