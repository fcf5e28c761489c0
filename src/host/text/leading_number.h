// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string_view>

/// Numbers of text fields and files, read as C's conversions read decimal numbers and independent
/// of the locale, with the question answered that those leave open: was it a number at all?
namespace leading_number {

template <class T>
struct Field {
  T value;
  bool whole;  ///< nothing but blanks and tabs follows the number
};

/// The leading integer as "%d" reads it: white space and one sign before it are taken. Nothing
/// without a digit, or when an int cannot hold the number.
[[nodiscard]] std::optional<Field<int>> LeadingInt(std::string_view text) noexcept;

/// The leading number as "%lf" reads decimal numbers. Nothing without a digit, or when a double
/// cannot hold the number.
[[nodiscard]] std::optional<Field<double>> LeadingDouble(std::string_view text) noexcept;

/// What a numeric box or cell makes of its text: the leading number, except that a text which
/// reads as 0 must consist of nothing but the number. Nothing for other texts, or when a double
/// cannot hold the number.
[[nodiscard]] std::optional<double> EnteredNumber(std::string_view text) noexcept;

}  // namespace leading_number
