// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/gui_inputs_data.h"
#include "pages/lamp_waveform/rules/lamp_current.h"

namespace lamp_waveform {

/// One stretch of the wheel under the waveform, times in microseconds.
struct StripPart {
  std::string name;  ///< a segment's letter; a spoke's two letters
  double startUs = 0;
  double endUs = 0;
  int color = -1;                  ///< color code
  std::optional<int> neighbour;    ///< of a spoke: the color code of the segment behind it
  std::optional<std::size_t> row;  ///< the pulse list's entry of the segment
};

/// The selected waveform as it is drawn.
struct WaveformPicture {
  double startUs = 0;  ///< what there is to show, in microseconds
  double endUs = 0;
  std::vector<StripPart> strip;  ///< in order of time
  std::vector<DrawnPulse> pulses;
  std::vector<std::pair<double, double>> current;
  double lowGain = 0;  ///< the range of the gain axis
  double highGain = 2;
  std::vector<std::string> rowTexts;  ///< each entry of the pulse list in a line
  std::string note;                   ///< why nothing, or no pulse, is drawn

  [[nodiscard]] bool IsEmpty() const noexcept { return !(endUs > startUs); }
};

[[nodiscard]] WaveformPicture MakePicture(const GUIInputsData& data);

/// The entry of the pulse list that is drawn at a time: the pulse whose middle is nearest among
/// those there, `reachUs` beside them included; else the segment.
[[nodiscard]] std::optional<std::size_t> RowAt(const WaveformPicture& picture, double us,
                                               double reachUs);
/// The entry of the segment at a time.
[[nodiscard]] std::optional<std::size_t> SegmentRowAt(const WaveformPicture& picture, double us);

}  // namespace lamp_waveform
