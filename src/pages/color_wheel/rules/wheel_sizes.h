// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/data/color_wheel_data.h"

namespace color_wheel {

inline constexpr double kMaxSpokeDegrees = 90.0;

/// Sum of the sizes, in degrees, of the segments whose color counts.
[[nodiscard]] double CountedTotal(std::span<const SSegGeom> segments);
[[nodiscard]] std::string TotalText(double total);
/// What the log is told of a total of more than a full turn; nothing of others.
[[nodiscard]] std::optional<std::string> TotalFault(double total);

/// The spoke size as its box shows it.
[[nodiscard]] std::string SpokeSizeText(double degrees);
/// Stores an entered spoke size: a number of at most 90. Other texts, and the one that is shown for
/// the stored size, store nothing. True when the size changed.
[[nodiscard]] bool StoreSpokeSize(std::string_view text, ColorWheelData& wheel);

}  // namespace color_wheel
