// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/text/number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using platform::FixedText;
using platform::GeneralText;
using platform::LeadingInteger;
using platform::LeadingNumber;
using platform::ParseInteger;
using platform::ParseNumber;
using platform::ShortestText;

constexpr auto kMost = std::numeric_limits<long long>::max();
constexpr auto kLeast = std::numeric_limits<long long>::min();

TEST(Number, ParseTakesTheWholeText) {
  const std::pair<const char*, double> taken[] = {
      {"0", 0},      {" \t-1.5\t ", -1.5}, {"+.5", 0.5},
      {"5.", 5},     {"1e3", 1000},        {"1E-3", 0.001},
      {"1e-400", 0}, {"0e99999", 0},       {"0.0000001e-99999999999999999999", 0}};
  for (const auto& [text, value] : taken) EXPECT_EQ(ParseNumber(text), value) << text;
  for (const double edge :
       {std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()})
    EXPECT_EQ(ParseNumber(ShortestText(edge)), edge);
  for (const char* text :
       {"1e309", "100000000000000000000e99999999999999999999", "", " ", "-", ".", "+-1", "--1",
        "- 1", "1 2", "1,5", "1.5x", "1\n", "0x10", "inf", "-nan", "1e"})
    EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
}

TEST(Number, ParseIntegerTakesTheWholeText) {
  const std::pair<const char*, long long> taken[] = {{"0", 0},
                                                     {" -7\t", -7},
                                                     {"+007", 7},
                                                     {"9223372036854775807", kMost},
                                                     {"-9223372036854775808", kLeast}};
  for (const auto& [text, value] : taken) EXPECT_EQ(ParseInteger(text), value) << text;
  for (const char* text :
       {"9223372036854775808", "-9223372036854775809", "", "+", "+-1", "1.0", "1 2", "0x1"})
    EXPECT_EQ(ParseInteger(text), std::nullopt) << text;
}

TEST(Number, LeadingPartsAreWhatTheCLibraryReads) {
  for (const char* text : {"", " ", "12abc", " \t\n\v\f\r-3.25e2,5", "+4", "+-4", "- 4", "1e+",
                           "1.5.5", ".", ".5", "-5.", "1e400x", "-1e400", "1e-400",
                           "99999999999999999999", "-99999999999999999999", "0x10", "-0"}) {
    // The C library reads hexadecimal too.
    const std::string decimal = std::string(text).starts_with("0x") ? "0" : text;
    EXPECT_EQ(LeadingNumber(text), std::strtod(decimal.c_str(), nullptr)) << text;
    EXPECT_EQ(LeadingInteger(text), std::strtoll(text, nullptr, 10)) << text;
  }
  EXPECT_TRUE(std::signbit(LeadingNumber("-0")));
  EXPECT_EQ(LeadingNumber("inf"), 0.0);
  EXPECT_EQ(LeadingNumber("nan"), 0.0);
}

std::string Printed(const char* format, int decimals, double value) {
  char text[512];
  std::snprintf(text, sizeof text, format, decimals, value);
  return text;
}

TEST(Number, TextsAreWhatTheCLibraryPrintsAndReadBack) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937_64 random(seed);
  std::vector<double> values = {0.0,  -0.0,  0.5,    1.5,      2.5, 0.1,    1e-5,    1e15,
                                1e16, 1e300, 1e-300, 999999.5, 1e5, 123456, 1234567, -1};
  while (values.size() < 2000) {
    const double value = std::bit_cast<double>(random());
    if (std::isfinite(value)) values.push_back(value);
  }
  for (const double value : values) {
    EXPECT_EQ(GeneralText(value), Printed("%.*g", 6, value));
    for (const int decimals : {0, 1, 3, 17})
      EXPECT_EQ(FixedText(value, decimals), Printed("%.*f", decimals, value));
    EXPECT_EQ(std::bit_cast<std::uint64_t>(*ParseNumber(ShortestText(value))),
              std::bit_cast<std::uint64_t>(value));
  }
  EXPECT_EQ(FixedText(1.0, 300), Printed("%.*f", 300, 1.0));
  EXPECT_EQ(ShortestText(0.1), "0.1");
}

}  // namespace
