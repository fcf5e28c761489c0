// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "pages/lamp_aging/rules/bin_table.h"

class OstProject;

namespace lamp_aging {

inline constexpr int kMaxFeedbackValue = 255;
inline constexpr int kMaxEntries = 16;
inline constexpr double kDefaultMaxAmplitude = 3.5;

/// What bins are held against.
struct Limits {
  double minAmplitude = 1.0;
  double maxAmplitude = kDefaultMaxAmplitude;
  int minOverlap = 0;  ///< feedback values that neighbouring bins must share beyond touching
};

/// The fixed limits with the maximum amplitude that the project allows.
[[nodiscard]] Limits ReadLimits(const OstProject& project);

// The rules give the message of the first one that fails, or nothing.

/// "Error, max# of allowed entries = %d"
[[nodiscard]] std::string TooManyEntriesText();

/// Whether the amplitude of this bin lies within the limits, both included.
[[nodiscard]] std::optional<std::string> AmplitudeFault(std::size_t number, double amplitude,
                                                        const Limits& limits);

/// Whether the candidate may join the table, which does not hold it yet.
[[nodiscard]] std::optional<std::string> BinFault(const Bin& candidate, const BinTable& table,
                                                  const Limits& limits);

// What the buttons do to a table. A refused edit leaves it as it was.

/// The bin to offer for adding: beside the selected row when there is one, else behind the last.
[[nodiscard]] Bin ProposeBin(const BinTable& table, std::optional<std::size_t> selectedRow,
                             const Limits& limits);

[[nodiscard]] std::optional<std::string> AddBin(BinTable& table, const Bin& bin,
                                                const Limits& limits);

/// Puts the bin in the place of the one with that number, which the table has.
[[nodiscard]] std::optional<std::string> ChangeBin(BinTable& table, std::size_t number,
                                                   const Bin& bin, const Limits& limits);

/// The same for the first bin of a ballast without feedback: only its amplitude has limits.
[[nodiscard]] std::optional<std::string> ChangeOnlyBin(BinTable& table, const Bin& bin,
                                                       const Limits& limits);

/// Removes the bin with that number; the last one stays. False when nothing was removed.
bool DeleteBin(BinTable& table, std::size_t number);

}  // namespace lamp_aging
