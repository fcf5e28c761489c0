// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using zel::archive::format;
using zel::archive::number_buffer;
using zel::archive::parse;
using Limits = std::numeric_limits<double>;

std::string Text(auto value) {
  number_buffer buffer;
  return std::string(format(value, buffer));
}

std::string GeneralText(double value) {
  char buffer[32];
  const auto done =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 17);
  return {buffer, done.ptr};
}

double FromBits(std::uint64_t bits) { return std::bit_cast<double>(bits); }

TEST(NumberText, WritesDoublesWithSeventeenDigits) {
  const std::pair<double, const char*> texts[] = {{1.0, "1"},
                                                  {0.1, "0.10000000000000001"},
                                                  {-2.5, "-2.5"},
                                                  {1e300, "1.0000000000000001e+300"},
                                                  {-1e-5, "-1.0000000000000001e-05"},
                                                  {0.0001, "0.0001"},
                                                  {12345678.9, "12345678.9"},
                                                  {1e16, "10000000000000000"},
                                                  {1e17, "1e+17"},
                                                  {9999999999999998.0, "9999999999999998"},
                                                  {0.99999999999999989, "0.99999999999999989"},
                                                  {Limits::max(), "1.7976931348623157e+308"},
                                                  {Limits::min(), "2.2250738585072014e-308"},
                                                  {0.0, "0"},
                                                  {-0.0, "0"},
                                                  {Limits::denorm_min(), "0"},
                                                  {-Limits::min() / 2, "0"},
                                                  {Limits::infinity(), "+INF"},
                                                  {-Limits::infinity(), "-INF"},
                                                  {Limits::quiet_NaN(), "QNaN"},
                                                  {FromBits(0x7ff0000000000001), "SNaN"}};
  for (const auto& [value, text] : texts) EXPECT_EQ(Text(value), text);
}

TEST(NumberText, WritesIntegersAndBools) {
  EXPECT_EQ(Text(std::numeric_limits<long long>::min()), "-9223372036854775808");
  EXPECT_EQ(Text(std::numeric_limits<unsigned long long>::max()), "18446744073709551615");
  EXPECT_EQ(Text(0LL), "0");
  EXPECT_EQ(Text(true) + Text(false), "10");
}

// The common range is done by arithmetic of our own; it must agree with the library everywhere,
// also around powers of ten and two, where digits and exponents change.
TEST(NumberText, AgreesWithTheLibraryInTheCommonRange) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937_64 random(seed);
  const auto check = [](double value) { ASSERT_EQ(Text(value), GeneralText(value)); };
  for (int i = 0; i < 200'000; ++i) {
    const std::uint64_t exponent = 1023 - 15 + random() % 70;
    check(FromBits((random() & 0x800fffffffffffff) | exponent << 52));
    check(static_cast<double>(random() % 1'000'000) / static_cast<double>(1 + random() % 1000) + 1);
  }
  for (double power = 1e-4; power < 1e16; power *= 10) {
    for (std::uint64_t step = 0; step < 200; ++step) {
      check(FromBits(std::bit_cast<std::uint64_t>(power) - 100 + step));
    }
  }
  for (double power = 0x1p-14; power < 0x1p54; power *= 2) {
    check(power);
    check(FromBits(std::bit_cast<std::uint64_t>(power) - 1));
  }
}

TEST(NumberText, EveryFiniteDoubleReadsBackBitForBit) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937_64 random(seed);
  for (int i = 0; i < 300'000; ++i) {
    const double value = FromBits(random());
    if (!std::isnormal(value)) continue;
    double read = 0;
    ASSERT_TRUE(parse(Text(value), read));
    ASSERT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(value));
  }
}

TEST(NumberText, ReadsDoubles) {
  const std::pair<const char*, double> texts[] = {
      {"", 0},
      {"1.5", 1.5},
      {" \t\n+1.5e1", 15},
      {".5", 0.5},
      {"5.", 5},
      {"-0", -0.0},
      {"1e-400", 0},
      {"-1E-999999999999", 0},
      {"0e999999", 0},
      {"+INF", Limits::infinity()},
      {"-INF", -Limits::infinity()},
      {"4.9406564584124654e-324", Limits::denorm_min()}};
  for (const auto& [text, expected] : texts) {
    double value = 99;
    ASSERT_TRUE(parse(text, value)) << text;
    EXPECT_EQ(value, expected) << text;
  }
  for (const char* text : {"SNaN", "QNaN"}) {
    double nan = 0;
    ASSERT_TRUE(parse(text, nan));
    EXPECT_EQ(Text(nan), text);
  }
}

TEST(NumberText, RefusesWhatIsNoDouble) {
  const std::string zeros(400, '0');
  std::vector<std::string> texts{"1" + zeros, "1" + zeros + "e-50"};
  for (const char* text : {"1.5x", "1.5 ", " ", "inf", "nan", "0x10", "1,5", "+-1", "--1", "e5",
                           ".", "+", "+ 1", "1e", "1e999", "-1e999", "1e99999999999999999999"})
    texts.emplace_back(text);
  for (const std::string& text : texts) {
    double value = 7;
    EXPECT_FALSE(parse(text, value)) << text;
    EXPECT_EQ(value, 7) << text;
  }
}

TEST(NumberText, ReadsIntegersAndBoolsWhole) {
  long long number = 0;
  EXPECT_TRUE(parse("-007", number) && number == -7);
  EXPECT_TRUE(parse("+12", number) && number == 12);
  for (const char* text : {"", " 1", "1 ", "1.0", "0x1", "+", "-", "+-1", "9223372036854775808"}) {
    EXPECT_FALSE(parse(text, number)) << text;
  }
  unsigned long long natural = 0;
  EXPECT_TRUE(parse("18446744073709551615", natural));
  EXPECT_FALSE(parse("-1", natural));
  bool flag = true;
  for (const char* text : {"", "0", "false"}) EXPECT_TRUE(parse(text, flag) && !flag) << text;
  for (const char* text : {"1", "true"}) EXPECT_TRUE(parse(text, flag) && flag) << text;
  for (const char* text : {"2", "01", "True", " 1", "yes"}) EXPECT_FALSE(parse(text, flag)) << text;
}

}  // namespace
