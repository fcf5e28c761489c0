// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// The parametric optics model.
struct OpticsModel {
  double SwSlopeFactor = 0.0;     ///< 0 to 1: softness of the short edge
  double LwSlopeFactor = 0.0;     ///< 0 to 1: softness of the long edge
  double Sw50Intersect = 400.0;   ///< nm, 360 to 850: half transmission at the short edge
  double Lw50Intersect = 700.0;   ///< nm, 360 to 850: half transmission at the long edge
  double Peaking = 0.0;           ///< 0 to 1: fall of the transmission away from its peak
  double PeakWavelength = 550.0;  ///< nm, 360 to 850
  double PeakTransmission = 1.0;  ///< 0 to 1
  double BlueReduce = 0.0;        ///< -1 to 1: share of the blue that is lost

  [[nodiscard]] bool operator==(const OpticsModel&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("SwSlopeFactor", SwSlopeFactor);
    ar& zel::archive::nvp("LwSlopeFactor", LwSlopeFactor);
    ar& zel::archive::nvp("Sw50Intersect", Sw50Intersect);
    ar& zel::archive::nvp("Lw50Intersect", Lw50Intersect);
    ar& zel::archive::nvp("Peaking", Peaking);
    ar& zel::archive::nvp("PeakWavelength", PeakWavelength);
    ar& zel::archive::nvp("PeakTransmission", PeakTransmission);
    ar& zel::archive::nvp("BlueReduce", BlueReduce);
  }
};
