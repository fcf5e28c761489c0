// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/titles.h"

#include <algorithm>

#include "pages/lamp_waveform/rules/ascii_case.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "platform/text/fill.h"
#include "platform/xml/names.h"

namespace lamp_waveform {
namespace {

constexpr const char* kDuplicate = "Duplicate Waveform Name";
constexpr const char* kWrong = "Wrong Waveform Name";

}  // namespace

std::optional<TitleRefusal> CheckNewTitle(std::string_view title,
                                          std::span<const std::string> titles) {
  if (std::ranges::find(titles, title) != titles.end()) {
    return TitleRefusal{kDuplicate, platform::Fill("A waveform with the name '%s' already exists. "
                                                   "Please enter a different name.",
                                                   {std::string(title)})};
  }
  if (EqualIgnoringCase(title, "(none)")) {
    return TitleRefusal{kWrong,
                        "Cannot use \"(None)\" as waveform name. Please enter a different name."};
  }
  if (platform::xml::FirstForbidden(title) != std::string_view::npos) {
    return TitleRefusal{kWrong, "The waveform name has a character that cannot be stored."};
  }
  return std::nullopt;
}

std::optional<TitleRefusal> CheckTitleInDatabase(const std::string& title,
                                                 std::span<const LampWaveFormDB> database) {
  for (const LampWaveFormDB& pair : database) {
    const auto& waveforms = pair.LWData;
    if (std::ranges::find(waveforms, title, &LampWaveFormData::WaveFormTitle) == waveforms.end()) {
      continue;
    }
    return TitleRefusal{
        kDuplicate, platform::Fill("Waveform '%s' is already associated with '%s' Group Type and "
                                   "'%.1fx' SpinFactor.\n\n%s",
                                   {title, pair.SeqGrpName, SpinFactorText(pair.SpinFactor),
                                    "Please use different name for the new waveform."})};
  }
  return std::nullopt;
}

std::string DeleteQuestion(const std::string& title) {
  return platform::Fill("Are you sure you want to delete waveform: \"%s\"?", {title});
}

}  // namespace lamp_waveform
