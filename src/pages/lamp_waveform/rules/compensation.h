// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/spoke_pulse.h"
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

/// The spokes of the selection's first wheel revolution with their pulses, in wheel order. A spoke
/// is named by its segment name, and by how often that came before where it did. The map follows
/// the wheel: new spokes come without a pulse, others are erased. Where the wheel cannot be timed,
/// for want of a group type, a rate or a whole revolution, nothing is known of its spokes: none are
/// listed and the map stays.
[[nodiscard]] std::vector<SpokePulse> ListSpokes(const GUIInputsData& data,
                                                 std::map<std::string, bool>& pulses);

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
