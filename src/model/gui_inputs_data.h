// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "archive/nvp.h"
#include "host/data/color_wheel_data.h"
#include "host/data/lamp_optics_data.h"
#include "model/lamp_wave_form_db.h"
#include "model/pc_group.h"
#include "model/xy_chroma.h"

/// What the lamp waveform page edits, and what it selects there.
class GUIInputsData {
 public:
  static constexpr unsigned class_version = 1;
  /// A ballast maker without compensation pulses.
  static constexpr std::int32_t kOtherMaker = 255;

  GUIInputsData() = default;
  GUIInputsData(const GUIInputsData&) = default;
  GUIInputsData& operator=(const GUIInputsData&) = default;
  virtual ~GUIInputsData() = default;

  /// Takes the other's color wheel, lamp optics and reference gamut with its name; the waveforms,
  /// group types and selection stay.
  virtual void CopyInputsFrom(const GUIInputsData& other) {
    if (this == &other) return;
    ColorWheel = other.ColorWheel;
    LampOptics = other.LampOptics;
    ReferenceGamutName = other.ReferenceGamutName;
    ReferenceGamut = other.ReferenceGamut;
  }

  ColorWheelData ColorWheel;
  LampOpticsData LampOptics;
  std::string ReferenceGamutName = "SMPTE Rec.240M";
  /// Red, green, blue, white, cyan, magenta, yellow; the secondaries lie on the edges of the
  /// triangle that the primaries span.
  std::array<xyChroma, 7> ReferenceGamut{{{0.63, 0.34},
                                          {0.31, 0.595},
                                          {0.155, 0.07},
                                          {0.3127, 0.329},
                                          {0.23062663, 0.32615472},
                                          {0.31440921, 0.16061155},
                                          {0.42086857, 0.50665161}}};
  std::vector<LampWaveFormDB> LampWaveformDB;
  std::vector<PCGroup> PCGroups;
  std::string CurrentGroupType;     ///< title of the selected group type
  double CurrentSpinFactor = 2.0;   ///< number of the selected spin factor's text
  std::string CurrentWaveformName;  ///< title of the selected waveform
  bool ApplyVIDarkPulse = false;
  std::int32_t BallastMakerCode = kOtherMaker;  ///< of the waveform selected last with code 0 or 1

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("ColorWheel", ColorWheel);
    ar& zel::archive::nvp("ReferenceGamut", ReferenceGamut);
    ar& zel::archive::nvp("LampWaveformDB", LampWaveformDB);
    ar& zel::archive::nvp("PCGroups", PCGroups);
    ar& zel::archive::nvp("ApplyVIDarkPulse", ApplyVIDarkPulse);
  }
};
