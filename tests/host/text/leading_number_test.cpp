// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/text/leading_number.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

TEST(LeadingNumber, IntegersAsTheScannerReadsThem) {
  const struct {
    const char* text;
    std::optional<int> value;
    bool whole;
  } cases[] = {{"450", 450, true},    {" +7\t", 7, true},       {"-3", -3, true},
               {"450.5", 450, false}, {"12nm", 12, false},      {"nm", {}, false},
               {"", {}, false},       {"+-3", {}, false},       {".5", {}, false},
               {"0x1F", 0, false},    {"2147483648", {}, false}};
  for (const auto& [text, value, whole] : cases) {
    const auto field = leading_number::LeadingInt(text);
    ASSERT_EQ(field.has_value(), value.has_value()) << text;
    if (!field) continue;
    EXPECT_EQ(field->value, *value) << text;
    EXPECT_EQ(field->whole, whole) << text;
  }
}

TEST(LeadingNumber, NumbersAsTheScannerReadsThem) {
  const struct {
    const char* text;
    std::optional<double> value;
    bool whole;
  } cases[] = {{"0.8", 0.8, true},   {".5", 0.5, true},  {"1e3 ", 1000, true}, {"+2.", 2, true},
               {"0,8", 0, false},    {"1 2", 1, false},  {"1e", 1, false},     {"1e-400", 0, true},
               {"1e400", {}, false}, {"inf", {}, false}, {"nan", {}, false},   {"-", {}, false},
               {".", {}, false},     {"0x10", 0, false}};
  for (const auto& [text, value, whole] : cases) {
    const auto field = leading_number::LeadingDouble(text);
    ASSERT_EQ(field.has_value(), value.has_value()) << text;
    if (!field) continue;
    EXPECT_EQ(field->value, *value) << text;
    EXPECT_EQ(field->whole, whole) << text;
  }
}

TEST(LeadingNumber, AnEnteredZeroMustBeNothingButTheNumber) {
  const struct {
    const char* text;
    std::optional<double> value;
  } cases[] = {{"12", 12.0},  {"12abc", 12.0}, {"-5", -5.0},  {"0", 0.0},
               {"0.00", 0.0}, {"0abc", {}},    {"abc", {}},   {"", {}},
               {" ", {}},     {"0x10", {}},    {"1e999", {}}, {"-1e999", {}}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(leading_number::EnteredNumber(text), value) << text;
  }
}

}  // namespace
