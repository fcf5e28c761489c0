// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <string_view>

#include "host/data/color_wheel_data.h"
#include "host/project/finding.h"

namespace color_wheel {

/// What the rules say of a wheel, given the letters of the colors that the project's wheels may use
/// and the frame rates it supports (none: any).
///
/// Errors: values outside what the page takes, more than 360 degrees, filters that do not match the
/// segments, a number that names no color. Warnings: what the page takes and a device shows as
/// dark, unused or unexpected.
[[nodiscard]] Findings CheckWheel(const ColorWheelData& wheel, std::string_view supportedLetters,
                                  std::span<const double> supportedRates);

}  // namespace color_wheel
