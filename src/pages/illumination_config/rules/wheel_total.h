// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/data/s_seg_geom.h"

namespace illumination_config {

/// A segment's size, or a spoke's, as grid and box show it.
[[nodiscard]] std::string DegreesText(double degrees);
/// The number of a degrees cell or of the spoke size box; 0 for a text that is none.
[[nodiscard]] double ReadDegrees(std::string_view text);

/// What "Total Degrees" shows while no wheel is edited.
inline constexpr const char* kNoTotalText = "0.0";

/// Sum of the sizes of a wheel's segments, degrees, whatever their colors.
[[nodiscard]] double WheelTotal(std::span<const SSegGeom> segments);
/// The message for a wheel of that many rows whose total no turn holds.
[[nodiscard]] std::optional<std::string> TotalRefusal(std::size_t rows, double total);

}  // namespace illumination_config
