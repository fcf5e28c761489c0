// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"
#include "host/data/lamp_data.h"
#include "host/data/optics_data.h"

/// Lamps and optics of a device.
class LampOpticsData {
 public:
  LampData Lamp;
  OpticsData Optics;

  [[nodiscard]] bool operator==(const LampOpticsData&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Lamp", Lamp);
    ar& zel::archive::nvp("Optics", Optics);
  }
};
