// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/lamp_aging_page_data.h"

namespace lamp_aging {

using Bin = SlrPulseAmpData;
using BinTable = SlrPulseAmpDataTable;

/// The 16 bins that a spin factor without a table starts with.
[[nodiscard]] const BinTable& DefaultFeedbackTable();
/// The one bin of a ballast that sends no feedback.
[[nodiscard]] const BinTable& DefaultNoFeedbackTable();

/// The bin of this number; the table has it.
[[nodiscard]] BinTable::const_iterator BinAt(const BinTable& table, std::size_t number);
/// The number that this lower value has, or would have, in the table.
[[nodiscard]] std::size_t NumberOf(const BinTable& table, const Bin& bin);

/// What the dialog's limits become in a bin: a negative entry is 32768 or more.
[[nodiscard]] Bin MakeBin(int lower, int upper, double amplitude) noexcept;

inline constexpr const char* kFeedbackCaption =
    "Mapping Between Ballast Feedback Values and Pulse Amplitudes";
inline constexpr const char* kNoFeedbackCaption =
    "Pulse Amplitude Ratio to use for ASIC Configuration";

/// The bin's amplitude as the lists show it.
[[nodiscard]] std::string AmplitudeText(double amplitude);

/// The rows of the list with feedback: bin number, lower limit, upper limit, amplitude.
[[nodiscard]] std::vector<std::array<std::string, 4>> FeedbackRows(const BinTable& table);
/// The rows of the list without: bin number, amplitude.
[[nodiscard]] std::vector<std::array<std::string, 2>> NoFeedbackRows(const BinTable& table);

}  // namespace lamp_aging
