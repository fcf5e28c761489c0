// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

#include "model/gui_inputs_data.h"

namespace waveform_test {

/// A three-color wheel, and group types "2D" (50 and 60 Hz, 60 selected) and "3D".
inline GUIInputsData MakeInputs() {
  GUIInputsData data;
  for (int color = 0; color < 3; ++color) {
    data.ColorWheel.Segments.push_back(SSegGeom{.Color = color, .Size = 120});
    data.ColorWheel.FilterSpecs.push_back(SFilterSpec{.Color = color});
  }
  data.ColorWheel.SpokeSize = 12;
  for (const char* title : {"2D", "3D"}) {
    PCGroup& group = data.PCGroups.emplace_back(title);
    group.Rates = {50, 60};
    group.BitwSelectRateFlags = {false, true};
    group.SpinFactors = {2.0, 2.5};
  }
  data.CurrentGroupType = "2D";
  return data;
}

/// A group type with dark pulses of 20 to 60 %.
inline PCGroup DarkGroup() {
  PCGroup group = MakeInputs().PCGroups[0];
  group.VIDarkPulseInfo = {.Enable = true,
                           .MaxFallLength = 30,
                           .Jitter = 1,
                           .MinWidthLength = 200,
                           .MaxRiseLength = 40,
                           .MinAmplitude = 20,
                           .MaxAmplitude = 60,
                           .CWRate = 120};
  return group;
}

/// The keys of the pulses, those without a pulse in brackets: "R00 (G00) B00".
inline std::string Keys(const std::vector<PulseInfo>& pulses) {
  std::string keys;
  for (const PulseInfo& pulse : pulses) {
    if (!keys.empty()) keys += " ";
    keys += pulse.m_IsPulse ? pulse.m_strCWSeg : "(" + pulse.m_strCWSeg + ")";
  }
  return keys;
}

}  // namespace waveform_test
