// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/lamp_wave_form_db.h"

namespace lamp_waveform {

/// Why a title is refused: a message box with an error icon.
struct TitleRefusal {
  std::string caption;
  std::string text;
};

/// The dialog's check of a title against those of the selected pair.
[[nodiscard]] std::optional<TitleRefusal> CheckNewTitle(std::string_view title,
                                                        std::span<const std::string> titles);
/// The page's check against every waveform of every pair; the first match is named.
[[nodiscard]] std::optional<TitleRefusal> CheckTitleInDatabase(
    const std::string& title, std::span<const LampWaveFormDB> database);

inline constexpr const char* kDeleteCaption = "Delete Waveform";
[[nodiscard]] std::string DeleteQuestion(const std::string& title);

}  // namespace lamp_waveform
