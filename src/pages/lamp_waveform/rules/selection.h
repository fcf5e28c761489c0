// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/gui_inputs_data.h"

/// Group types, spin factors and waveforms: how the page's selection finds its data.
namespace lamp_waveform {

/// Strings are compared case-sensitively, spin factors exactly; null when there is none.
[[nodiscard]] LampWaveFormDB* FindPair(GUIInputsData& data, std::string_view group, double spin);
[[nodiscard]] const LampWaveFormDB* FindPair(const GUIInputsData& data, std::string_view group,
                                             double spin);
/// The pair's waveforms; a pair that has no entry yet gets an empty one.
[[nodiscard]] std::vector<LampWaveFormData>& WaveformsOf(GUIInputsData& data,
                                                         const std::string& group, double spin);

/// The group type of that title, or null.
[[nodiscard]] const PCGroup* FindGroup(const GUIInputsData& data, std::string_view title);
/// The group type and the waveform that are selected in the data; null when there is none.
[[nodiscard]] const PCGroup* SelectedGroup(const GUIInputsData& data);
[[nodiscard]] LampWaveFormData* SelectedWaveform(GUIInputsData& data);
[[nodiscard]] const LampWaveFormData* SelectedWaveform(const GUIInputsData& data);

/// The spin factors as the list offers them, each text once.
[[nodiscard]] std::vector<std::string> SpinFactorTexts(const PCGroup& group);
[[nodiscard]] std::string SpinFactorText(double spin);
[[nodiscard]] double SpinFactorOf(std::string_view text);
[[nodiscard]] std::vector<std::string> Titles(std::span<const LampWaveFormData> waveforms);

/// The item to select in a list that was filled anew: the one of the same text, else the first that
/// begins with it, letter case ignored (ASCII), else the first. Nothing in an empty list.
[[nodiscard]] std::optional<std::size_t> ReselectByBeginning(std::span<const std::string> items,
                                                             std::string_view previous);
/// The same, but equal to the text instead of beginning with it.
[[nodiscard]] std::optional<std::size_t> ReselectByName(std::span<const std::string> items,
                                                        std::string_view previous);

}  // namespace lamp_waveform
