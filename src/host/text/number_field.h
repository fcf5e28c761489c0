// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace host::text {

/// The longest text a numeric field of a dialog is read from.
inline constexpr std::size_t kFieldLength = 400;

/// What a dialog's numeric field takes, bounds included.
struct FieldRange {
  double low;
  double high;
};

/// The field's value, or the prompt that refuses its text: one that asks for a number, or one
/// that names the bounds.
[[nodiscard]] std::variant<double, std::string> ReadNumberField(std::string_view text,
                                                                FieldRange range);
[[nodiscard]] std::variant<long long, std::string> ReadIntegerField(std::string_view text,
                                                                    FieldRange range);

}  // namespace host::text
