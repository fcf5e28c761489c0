// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace zel::archive {

namespace {

constexpr std::uint64_t kQuietBit = std::uint64_t{1} << 51;

std::string_view format_unusual(double value, int kind) noexcept {
  if (kind == FP_INFINITE) return value > 0 ? "+INF" : "-INF";
  if (kind == FP_NAN) return (std::bit_cast<std::uint64_t>(value) & kQuietBit) ? "QNaN" : "SNaN";
  return "0";
}

__extension__ using wide = unsigned __int128;

constexpr int kDigits = 17;

constexpr std::array<std::uint64_t, 20> kPowersOfTen = [] {
  std::array<std::uint64_t, 20> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

/// A positive double as mantissa x 2^-shift, the mantissa having 53 bits.
struct binary {
  std::uint64_t mantissa;
  int shift;
};

binary split(double value) noexcept {
  constexpr std::uint64_t kHidden = std::uint64_t{1} << 52;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  return {(bits & (kHidden - 1)) | kHidden, 1075 - static_cast<int>((bits >> 52) & 0x7ff)};
}

/// The value times 10^power, rounded to a whole number, a half to the even one. With a shift of 1
/// to 66 and a power up to 20 the product fits the wide type, and all of it is exact.
std::uint64_t scaled(binary value, int power) noexcept {
  const int first = std::min(power, 19);
  const wide product = static_cast<wide>(value.mantissa) *
                       kPowersOfTen[static_cast<std::size_t>(first)] *
                       kPowersOfTen[static_cast<std::size_t>(power - first)];
  const wide half = static_cast<wide>(1) << (value.shift - 1);
  const wide rest = product & (2 * half - 1);
  const auto whole = static_cast<std::uint64_t>(product >> value.shift);
  return whole + (rest > half || (rest == half && (whole & 1) != 0) ? 1 : 0);
}

template <std::uint64_t... Zeros>
std::uint64_t without_trailing_zeros(std::uint64_t digits) noexcept {
  ((digits = digits % Zeros == 0 ? digits / Zeros : digits), ...);
  return digits;
}

/// The digits with the first of them at 10^exponent, which is -4 to 16.
char* put_decimal(std::uint64_t digits, int exponent, char* out) noexcept {
  if (exponent < 0) {
    *out++ = '0';
    *out++ = '.';
    out = std::fill_n(out, -exponent - 1, '0');
    return std::to_chars(out, out + kDigits, digits).ptr;
  }
  char* end = std::to_chars(out, out + kDigits, digits).ptr;
  char* point = out + exponent + 1;
  if (end <= point) return std::fill_n(end, point - end, '0');
  std::copy_backward(point, end, end + 1);
  *point = '.';
  return end + 1;
}

/// What to_chars writes with 17 digits, for the values from 1e-4 up to 2^52. Nearly all are in
/// that range, and there exact whole numbers do it several times faster.
char* format_common(double magnitude, char* out) noexcept {
  const binary value = split(magnitude);
  // 1233/4096 is just below log10(2): this is the decimal exponent, or one less.
  int exponent = ((52 - value.shift) * 1233) >> 12;
  std::uint64_t digits = scaled(value, kDigits - 1 - exponent);
  if (digits >= kPowersOfTen[kDigits]) {
    ++exponent;
    digits = scaled(value, kDigits - 1 - exponent);
  }
  digits = without_trailing_zeros<100'000'000, 100'000'000, 10'000, 100, 10>(digits);
  return put_decimal(digits, exponent, out);
}

template <class Number>
std::string_view format_integer(Number value, number_buffer& buffer) noexcept {
  const auto done = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, static_cast<std::size_t>(done.ptr - buffer)};
}

std::string_view without_plus(std::string_view text) noexcept {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

template <class Number>
bool parse_integer(std::string_view text, Number& value) noexcept {
  text = without_plus(text);
  const char* end = text.data() + text.size();
  Number parsed = 0;
  const auto done = std::from_chars(text.data(), end, parsed);
  if (done.ec != std::errc() || done.ptr != end) return false;
  value = parsed;
  return true;
}

bool parse_special(std::string_view text, double& value) noexcept {
  using limits = std::numeric_limits<double>;
  if (text == "+INF") {
    value = limits::infinity();
  } else if (text == "-INF") {
    value = -limits::infinity();
  } else if (text == "QNaN") {
    value = limits::quiet_NaN();
  } else if (text == "SNaN") {
    value = limits::signaling_NaN();
  } else {
    return false;
  }
  return true;
}

/// from_chars also takes "inf" and "nan", which are no decimal numbers.
bool starts_number(std::string_view text) noexcept {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && ((text[0] >= '0' && text[0] <= '9') || text[0] == '.');
}

/// For a well-formed number beyond the range of a double: true when it is too small rather than
/// too large.
bool is_underflow(std::string_view text) noexcept {
  const std::size_t mark = std::min(text.find_first_of("eE"), text.size());
  const std::string_view digits = text.substr(0, mark);
  const std::size_t first = digits.find_first_of("123456789");
  if (first == std::string_view::npos) return true;
  const auto point = static_cast<long long>(std::min(digits.find('.'), digits.size()));
  std::string_view exponent_text = text.substr(mark);
  if (!exponent_text.empty()) exponent_text = without_plus(exponent_text.substr(1));
  if (exponent_text.size() > 10) return exponent_text.starts_with('-');
  long long exponent = 0;
  std::from_chars(exponent_text.data(), exponent_text.data() + exponent_text.size(), exponent);
  return point - static_cast<long long>(first) + exponent < 0;
}

}  // namespace

std::string_view format(double value, number_buffer& buffer) noexcept {
  const int kind = std::fpclassify(value);
  if (kind != FP_NORMAL) return format_unusual(value, kind);
  char* out = buffer;
  const double magnitude = std::abs(value);
  if (magnitude < 1e-4 || magnitude >= 0x1p52) {
    out = std::to_chars(out, out + sizeof buffer, value, std::chars_format::general, kDigits).ptr;
  } else {
    if (value < 0) *out++ = '-';
    out = format_common(magnitude, out);
  }
  return {buffer, static_cast<std::size_t>(out - buffer)};
}

std::string_view format(long long value, number_buffer& buffer) noexcept {
  return format_integer(value, buffer);
}

std::string_view format(unsigned long long value, number_buffer& buffer) noexcept {
  return format_integer(value, buffer);
}

std::string_view format(bool value, number_buffer&) noexcept { return value ? "1" : "0"; }

bool parse(std::string_view text, double& value) noexcept {
  if (text.empty()) {
    value = 0.0;
    return true;
  }
  if (parse_special(text, value)) return true;
  const std::size_t begin = text.find_first_not_of(" \t\n\v\f\r");
  if (begin == std::string_view::npos) return false;
  text = without_plus(text.substr(begin));
  if (!starts_number(text)) return false;
  const char* end = text.data() + text.size();
  double parsed = 0.0;
  const auto done = std::from_chars(text.data(), end, parsed);
  if (done.ptr != end || done.ec == std::errc::invalid_argument) return false;
  if (done.ec == std::errc::result_out_of_range) {
    if (!is_underflow(text)) return false;
    parsed = 0.0;
  }
  if (!std::isfinite(parsed)) return false;
  value = parsed;
  return true;
}

bool parse(std::string_view text, long long& value) noexcept { return parse_integer(text, value); }

bool parse(std::string_view text, unsigned long long& value) noexcept {
  return parse_integer(text, value);
}

bool parse(std::string_view text, bool& value) noexcept {
  if (text.empty() || text == "0" || text == "false") {
    value = false;
  } else if (text == "1" || text == "true") {
    value = true;
  } else {
    return false;
  }
  return true;
}

}  // namespace zel::archive
