// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/calc/seq_timeline.h"
#include "model/gui_inputs_data.h"

/// The compensation pulses of a waveform: anti-flatter for one ballast maker, S pulses for another.
namespace lamp_waveform {

inline constexpr const char* kInvalidInputCaption = "Invalid Input";

struct CompensationTexts {
  const char* tab;
  const char* enable;   ///< the check box
  const char* heading;  ///< the grid's last column
};
/// By the page's maker code; every code but the S pulse maker's has the texts of anti-flatter.
[[nodiscard]] CompensationTexts TextsOf(std::int32_t makerCode);

/// The spokes of the selection's first wheel revolution, by name, in wheel order. A spoke is named
/// by its segment name, and by how often it came before where that is not 0.
[[nodiscard]] std::vector<std::string> SpokeNames(const GUIInputsData& data);

/// Brings the spoke map to the spokes there are: new ones without a pulse, others erased. True when
/// the map changed.
bool FollowSpokes(const std::vector<std::string>& spokes, std::map<std::string, bool>& pulses);

/// What became of an entered value.
struct Entered {
  bool changed = false;
  std::optional<std::string> refusal;
};
[[nodiscard]] std::string RatioText(std::int32_t ratio);
/// Stores the leading integer of the text, more than 100 (percent).
[[nodiscard]] Entered EnterRatio(std::string_view text, std::int32_t& stored);
[[nodiscard]] std::string LengthText(double length);
/// Stores the leading number of the text, more than 0 (microseconds at 60 Hz). The text that is
/// shown for the stored length stores nothing.
[[nodiscard]] Entered EnterLength(std::string_view text, double& stored);

}  // namespace lamp_waveform
