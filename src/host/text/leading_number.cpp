// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/text/leading_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <type_traits>

#include "platform/text/number.h"

namespace leading_number {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Skips white space and a plus sign; what follows must begin a decimal number.
bool SkipToNumber(const char*& begin, const char* end) {
  while (begin != end && (*begin == ' ' || (*begin >= '\t' && *begin <= '\r'))) ++begin;
  if (begin != end && *begin == '+' && end - begin > 1 && begin[1] != '-') ++begin;
  const char* digit = begin;
  if (digit != end && *digit == '-') ++digit;
  return digit != end && (IsDigit(*digit) || *digit == '.');
}

template <class T>
std::optional<Field<T>> Leading(std::string_view text) noexcept {
  const char* begin = text.data();
  const char* const end = begin + text.size();
  if (!SkipToNumber(begin, end)) return std::nullopt;
  T value{};
  const auto [rest, error] = std::from_chars(begin, end, value);
  if (error == std::errc::result_out_of_range && std::is_floating_point_v<T>) {
    // Too small is 0, too large is no number.
    value = static_cast<T>(platform::LeadingNumber(text));
    if (value != 0) return std::nullopt;
  } else if (error != std::errc()) {
    return std::nullopt;
  }
  const bool whole = std::all_of(rest, end, [](char c) { return c == ' ' || c == '\t'; });
  return Field<T>{value, whole};
}

}  // namespace

std::optional<Field<int>> LeadingInt(std::string_view text) noexcept { return Leading<int>(text); }

std::optional<Field<double>> LeadingDouble(std::string_view text) noexcept {
  return Leading<double>(text);
}

std::optional<double> EnteredNumber(std::string_view text) noexcept {
  const double value = platform::LeadingNumber(text);
  if (value == 0) return platform::ParseNumber(text);
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace leading_number
