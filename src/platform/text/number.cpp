// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/text/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace platform {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view SkipSpace(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\n\v\f\r");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

/// Takes one sign off the front and says whether it was a minus.
bool TakeSign(std::string_view& text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  return negative;
}

/// Whether a number that no double holds (from_chars: out of range) is too small, not too large:
/// the decimal place of its first digit that counts lies behind the point.
bool IsTiny(std::string_view number) {
  const auto exponentAt = number.find_first_of("eE");
  const std::string_view digits = number.substr(0, exponentAt);
  const auto point = std::min(digits.find('.'), digits.size());
  const auto first = digits.find_first_of("123456789");
  const long long place = static_cast<long long>(point) - static_cast<long long>(first);
  const long long exponent =
      exponentAt == std::string_view::npos ? 0 : LeadingInteger(number.substr(exponentAt + 1));
  // A saturated exponent decides alone.
  if (exponent == std::numeric_limits<long long>::min()) return true;
  if (exponent == std::numeric_limits<long long>::max()) return false;
  return place + exponent < 0;
}

struct Leading {
  double value = 0.0;
  std::size_t taken = 0;
};

/// The unsigned decimal number that `text` starts with; infinity where it is too large.
Leading TakeUnsigned(std::string_view text) {
  // from_chars also knows words: inf, nan.
  if (text.empty() || (!IsDigit(text[0]) && text[0] != '.')) return {};
  Leading leading;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), leading.value);
  if (error == std::errc::invalid_argument) return {};
  leading.taken = static_cast<std::size_t>(end - text.data());
  if (error == std::errc::result_out_of_range)
    leading.value =
        IsTiny(text.substr(0, leading.taken)) ? 0.0 : std::numeric_limits<double>::infinity();
  return leading;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) noexcept {
  text = Trim(text);
  const bool negative = TakeSign(text);
  const Leading leading = TakeUnsigned(text);
  if (leading.taken == 0 || leading.taken != text.size() || !std::isfinite(leading.value))
    return std::nullopt;
  return negative ? -leading.value : leading.value;
}

std::optional<long long> ParseInteger(std::string_view text) noexcept {
  text = Trim(text);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  long long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

double LeadingNumber(std::string_view text) noexcept {
  text = SkipSpace(text);
  const bool negative = TakeSign(text);
  const double value = TakeUnsigned(text).value;
  return negative ? -value : value;
}

long long LeadingInteger(std::string_view text) noexcept {
  text = SkipSpace(text);
  const bool negative = text.starts_with('-');
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return 0;
  }
  long long value = 0;
  const auto error = std::from_chars(text.data(), text.data() + text.size(), value).ec;
  if (error != std::errc::result_out_of_range) return value;
  return negative ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}

std::string FixedText(double value, int decimals) {
  // A sign, the 309 digits of the largest double, a point and the decimals.
  std::string text(static_cast<std::size_t>(std::max(decimals, 6)) + 312, '\0');
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::fixed, decimals)
                       .ptr;
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
}

std::string GeneralText(double value, int digits) {
  char text[32];
  const auto end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::general, digits).ptr;
  return std::string(text, end);
}

std::string ShortestText(double value) {
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
}

}  // namespace platform
