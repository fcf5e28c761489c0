// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/color_wheel_data.h"

namespace color_wheel {

/// The text of the project's supported rates that stands for a project without any.
inline constexpr std::string_view kNoSupportedRates = "Not Found";
inline constexpr double kDefaultFrameRate = 60.0;

/// The rates of a text such as "50 60 100 120", in its order. Reading ends at the first character
/// that is neither white space nor part of a number.
[[nodiscard]] std::vector<double> ParseFrameRates(std::string_view text);

/// The frame rate list as the page first fills it.
struct FrameRateList {
  std::vector<std::string> entries;
  std::optional<std::size_t> selected;
  bool enabled = false;
  std::optional<double> storeAtOnce;  ///< a default that becomes the nominal rate
};

[[nodiscard]] FrameRateList MakeFrameRateList(std::span<const double> supported, double defaultRate,
                                              double nominalRate);

/// Stores the rate of the chosen entry, the supported one where it shows one rounded. A text that
/// is no number is ignored. True when the nominal rate changed; the second rate then follows it,
/// unless the wheel spins four times a frame.
[[nodiscard]] bool SelectFrameRate(std::string_view entry, std::span<const double> supported,
                                   ColorWheelData& wheel);

}  // namespace color_wheel
