// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/selection.h"

#include <algorithm>

#include "pages/lamp_waveform/rules/ascii_case.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

template <class Items, class Predicate>
auto* FindIf(Items& items, Predicate predicate) {
  const auto found = std::find_if(items.begin(), items.end(), predicate);
  return found == items.end() ? nullptr : &*found;
}

template <class Data>
auto* FindPairOf(Data& data, std::string_view group, double spin) {
  return FindIf(data.LampWaveformDB, [&](const LampWaveFormDB& pair) {
    return pair.SpinFactor == spin && pair.SeqGrpName == group;
  });
}

template <class Data>
auto* FindWaveformOf(Data& data) {
  auto* pair = FindPairOf(data, data.CurrentGroupType, data.CurrentSpinFactor);
  using Waveform = decltype(pair->LWData.data());
  if (pair == nullptr) return Waveform{};
  return FindIf(pair->LWData, [&](const LampWaveFormData& waveform) {
    return waveform.WaveFormTitle == data.CurrentWaveformName;
  });
}

template <class Predicate>
std::optional<std::size_t> Reselect(std::span<const std::string> items, std::string_view previous,
                                    Predicate fits) {
  if (items.empty()) return std::nullopt;
  auto found = std::ranges::find(items, previous);
  if (found == items.end()) found = std::ranges::find_if(items, fits);
  return found == items.end() ? 0 : static_cast<std::size_t>(found - items.begin());
}

}  // namespace

LampWaveFormDB* FindPair(GUIInputsData& data, std::string_view group, double spin) {
  return FindPairOf(data, group, spin);
}

const LampWaveFormDB* FindPair(const GUIInputsData& data, std::string_view group, double spin) {
  return FindPairOf(data, group, spin);
}

std::vector<LampWaveFormData>& WaveformsOf(GUIInputsData& data, const std::string& group,
                                           double spin) {
  if (LampWaveFormDB* pair = FindPair(data, group, spin)) return pair->LWData;
  return data.LampWaveformDB.emplace_back(LampWaveFormDB{group, spin, {}}).LWData;
}

const PCGroup* FindGroup(const GUIInputsData& data, std::string_view title) {
  return FindIf(data.PCGroups, [&](const PCGroup& group) { return group.Title == title; });
}

const PCGroup* SelectedGroup(const GUIInputsData& data) {
  return FindGroup(data, data.CurrentGroupType);
}

LampWaveFormData* SelectedWaveform(GUIInputsData& data) { return FindWaveformOf(data); }

const LampWaveFormData* SelectedWaveform(const GUIInputsData& data) { return FindWaveformOf(data); }

std::string SpinFactorText(double spin) { return platform::FixedText(spin, 1); }

double SpinFactorOf(std::string_view text) { return platform::LeadingNumber(text); }

std::vector<std::string> SpinFactorTexts(const PCGroup& group) {
  std::vector<std::string> texts;
  for (const double spin : group.SpinFactors) {
    std::string text = SpinFactorText(spin);
    if (std::ranges::find(texts, text) == texts.end()) texts.push_back(std::move(text));
  }
  return texts;
}

std::vector<std::string> Titles(std::span<const LampWaveFormData> waveforms) {
  std::vector<std::string> titles;
  for (const LampWaveFormData& waveform : waveforms) titles.push_back(waveform.WaveFormTitle);
  return titles;
}

std::optional<std::size_t> ReselectByBeginning(std::span<const std::string> items,
                                               std::string_view previous) {
  return Reselect(items, previous, [&](std::string_view item) {
    return EqualIgnoringCase(item.substr(0, previous.size()), previous);
  });
}

std::optional<std::size_t> ReselectByName(std::span<const std::string> items,
                                          std::string_view previous) {
  return Reselect(items, previous,
                  [&](std::string_view item) { return EqualIgnoringCase(item, previous); });
}

}  // namespace lamp_waveform
