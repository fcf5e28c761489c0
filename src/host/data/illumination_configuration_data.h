// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "archive/nvp.h"
#include "archive/serialize_array.h"
#include "host/data/color_wheel_data.h"
#include "host/data/illum_characteristics.h"

/// The device's light sources and the wheels they shine through.
class IlluminationConfigurationData {
 public:
  static constexpr short kSlots = 8;

  std::array<IllumCharacteristics, kSlots> Sources;
  std::vector<ColorWheelData> Wheels;  ///< one a source that has one; named by WheelNumber
  std::uint16_t WheelSlots = 1;        ///< number of wheels plus one

  [[nodiscard]] bool operator==(const IlluminationConfigurationData&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    zel::archive::SerializeArray<IllumCharacteristics, short, kSlots> sources(Sources);
    ar& zel::archive::nvp("Sources", sources);
    ar& zel::archive::nvp("Wheels", Wheels);
    ar& zel::archive::nvp("WheelSlots", WheelSlots);
  }
};
