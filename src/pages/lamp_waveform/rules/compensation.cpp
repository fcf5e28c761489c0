// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/compensation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "host/calc/zel_utils.h"
#include "pages/lamp_waveform/rules/ballast.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

constexpr long long kLeastRatio = 101;

/// Segments of one revolution of the timeline; nothing where there is no whole one.
std::optional<std::size_t> RevolutionLength(const SequenceTiming::SeqTimeline& timeline,
                                            const GUIInputsData& data) {
  if (!IsTimed(timeline)) return std::nullopt;
  const int frames = ZelUtils::GetNumFramesForSpinFactor(
      data.CurrentSpinFactor, data.CurrentGroupType == k3dGroup, false, data.CurrentGroupType);
  // A timeline without segments may come of a spin factor that no index can count.
  if (timeline.Segments().empty()) return 0;
  const auto revolutions = static_cast<std::uint16_t>(frames * data.CurrentSpinFactor);
  if (revolutions == 0) return std::nullopt;
  return timeline.Segments().size() / revolutions;
}

/// Nothing where nothing is known of spokes.
std::optional<std::vector<std::string>> FindSpokes(const GUIInputsData& data) {
  const SequenceTiming::SeqTimeline timeline = SelectedTimeline(data);
  const auto count = RevolutionLength(timeline, data);
  if (!count) return std::nullopt;
  std::vector<std::string> names;
  for (std::size_t i = 0; i < *count; ++i) {
    const SequenceTiming::SeqSegment& segment = timeline.Segments()[i];
    if (segment.name.size() == 1) continue;
    names.push_back(segment.index2 > 0 ? segment.name + std::to_string(segment.index2)
                                       : segment.name);
  }
  return names;
}

}  // namespace

CompensationTexts TextsOf(std::int32_t makerCode) {
  if (makerCode == kSPulseMaker) {
    return {"OSRAM", "Enable S Pulse Compensation", "S Pulse?"};
  }
  return {"Philips", "Enable Anti-Flatter Pulse Compensation", "Anti-Flatter Pulse?"};
}

std::vector<SpokePulse> ListSpokes(const GUIInputsData& data, std::map<std::string, bool>& pulses) {
  const auto names = FindSpokes(data);
  if (!names) return {};
  const std::set<std::string> known(names->begin(), names->end());
  std::erase_if(pulses, [&](const auto& entry) { return !known.contains(entry.first); });
  std::vector<SpokePulse> spokes;
  for (const std::string& name : *names) {
    spokes.push_back({name, pulses.try_emplace(name, false).first->second});
  }
  return spokes;
}

std::string RatioText(std::int32_t ratio) { return std::to_string(ratio); }

Entered EnterRatio(std::string_view text, std::int32_t& stored) {
  const long long ratio = platform::LeadingInteger(text);
  constexpr long long most = std::numeric_limits<std::int32_t>::max();
  if (ratio == stored) return {};
  if (ratio < kLeastRatio) return {false, "Pulse Plateau Ratio should be more than 100%."};
  if (ratio > most) {
    return {false, "Please enter an integer between " + std::to_string(kLeastRatio) + " and " +
                       std::to_string(most) + "."};
  }
  stored = static_cast<std::int32_t>(ratio);
  return {true, std::nullopt};
}

std::string LengthText(double length) { return platform::FixedText(length, 3); }

Entered EnterLength(std::string_view text, double& stored) {
  const double length = platform::LeadingNumber(text);
  if (length == stored || text == LengthText(stored)) return {};
  if (!(length > 0) || !std::isfinite(length)) {
    return {false, "Pulse Length should be a non zero positive number."};
  }
  stored = length;
  return {true, std::nullopt};
}

}  // namespace lamp_waveform
