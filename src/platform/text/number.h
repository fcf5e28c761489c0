// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The whole text as a decimal number, independent of the locale; blanks and tabs around it and
/// one leading sign are taken. Nothing when it is not one number, or is not finite.
[[nodiscard]] std::optional<double> ParseNumber(std::string_view text) noexcept;
/// The whole text as a decimal integer under the same rules.
[[nodiscard]] std::optional<long long> ParseInteger(std::string_view text) noexcept;
/// The leading numeric part of the text as C's strtod reads decimal numbers; 0 without one.
[[nodiscard]] double LeadingNumber(std::string_view text) noexcept;
/// The leading integer as C's strtol reads decimal integers (saturating); 0 without one.
[[nodiscard]] long long LeadingInteger(std::string_view text) noexcept;

/// `value` in fixed notation with that many decimals, as "%.*f" prints it in the C locale.
[[nodiscard]] std::string FixedText(double value, int decimals);
/// With up to that many (17 at most) significant digits, as "%.*g" prints it in the C locale.
[[nodiscard]] std::string GeneralText(double value, int digits = 6);
/// The shortest text that reads back as the same double.
[[nodiscard]] std::string ShortestText(double value);

}  // namespace platform
