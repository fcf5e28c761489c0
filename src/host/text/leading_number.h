// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <type_traits>

/// Numbers of text fields and files, read as C's conversions read decimal numbers and independent
/// of the locale, with the question answered that those leave open: was it a number at all?
/// The readers of files call the first two for every line, so they stand here to be taken in.
namespace leading_number {

template <class T>
struct Field {
  T value;
  bool whole;  ///< nothing but blanks and tabs follows the number
};

namespace detail {

constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// Where the decimal number behind white space and a plus sign begins; null when there is none.
[[nodiscard]] constexpr const char* NumberBegin(const char* begin, const char* end) noexcept {
  while (begin != end && (*begin == ' ' || (*begin >= '\t' && *begin <= '\r'))) ++begin;
  if (begin != end && *begin == '+' && end - begin > 1 && begin[1] != '-') ++begin;
  const char* digit = begin;
  if (digit != end && *digit == '-') ++digit;
  return digit != end && (IsDigit(*digit) || *digit == '.') ? begin : nullptr;
}

/// For a number that no double holds: 0 when it is too small, nothing when it is too large.
[[nodiscard]] std::optional<double> OutOfRange(std::string_view text) noexcept;

template <class T>
[[nodiscard]] std::optional<Field<T>> Leading(std::string_view text) noexcept {
  const char* const end = text.data() + text.size();
  const char* const begin = NumberBegin(text.data(), end);
  if (begin == nullptr) return std::nullopt;
  T value{};
  const auto [rest, error] = std::from_chars(begin, end, value);
  if constexpr (std::is_floating_point_v<T>) {
    if (error == std::errc::result_out_of_range) {
      const std::optional<T> replaced = OutOfRange(text);
      if (!replaced) return std::nullopt;
      value = *replaced;
    }
  } else if (error != std::errc()) {
    return std::nullopt;
  }
  if (error == std::errc::invalid_argument) return std::nullopt;
  const bool whole = std::all_of(rest, end, [](char c) { return c == ' ' || c == '\t'; });
  return Field<T>{value, whole};
}

}  // namespace detail

/// The leading integer as "%d" reads it: white space and one sign before it are taken. Nothing
/// without a digit, or when an int cannot hold the number.
[[nodiscard]] inline std::optional<Field<int>> LeadingInt(std::string_view text) noexcept {
  return detail::Leading<int>(text);
}

/// The leading number as "%lf" reads decimal numbers. Nothing without a digit, or when a double
/// cannot hold the number.
[[nodiscard]] inline std::optional<Field<double>> LeadingDouble(std::string_view text) noexcept {
  return detail::Leading<double>(text);
}

/// What a numeric box or cell makes of its text: the leading number, except that a text which
/// reads as 0 must consist of nothing but the number. Nothing for other texts, or when a double
/// cannot hold the number.
[[nodiscard]] std::optional<double> EnteredNumber(std::string_view text) noexcept;

}  // namespace leading_number
