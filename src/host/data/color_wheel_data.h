// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <vector>

#include "archive/nvp.h"
#include "host/data/s_filter_spec.h"
#include "host/data/s_seg_geom.h"

/// A color wheel: its segments in wheel order with their filters, its spokes, and the frame rates
/// it is designed for.
class ColorWheelData {
 public:
  std::int16_t WheelNumber = 0;  ///< 0: the device's own wheel; from 1: an illuminator's
  double SpokeSize = 0.0;        ///< degrees, at most 90
  double SpinValue = 2.0;
  std::vector<SSegGeom> Segments;
  std::vector<SFilterSpec> FilterSpecs;  ///< one a segment, in the same order
  double NominalFrameRate = 60.0;        ///< Hz
  double SecondFrameRate = 60.0;         ///< Hz; follows the nominal rate unless SpinValue is 4
  bool UseModeledPwm = true;             ///< else the measured efficiencies are used
  bool WhiteProcessing = false;
  bool SpokeLightRecapture = false;
  bool SecondaryColorBoost = false;

  [[nodiscard]] bool operator==(const ColorWheelData&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("WheelNumber", WheelNumber);
    ar& zel::archive::nvp("SpokeSize", SpokeSize);
    ar& zel::archive::nvp("SpinValue", SpinValue);
    ar& zel::archive::nvp("Segments", Segments);
    ar& zel::archive::nvp("FilterSpecs", FilterSpecs);
    ar& zel::archive::nvp("NominalFrameRate", NominalFrameRate);
    ar& zel::archive::nvp("SecondFrameRate", SecondFrameRate);
    ar& zel::archive::nvp("UseModeledPwm", UseModeledPwm);
    ar& zel::archive::nvp("WhiteProcessing", WhiteProcessing);
    ar& zel::archive::nvp("SpokeLightRecapture", SpokeLightRecapture);
    ar& zel::archive::nvp("SecondaryColorBoost", SecondaryColorBoost);
  }
};
