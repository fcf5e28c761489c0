// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/text/number_field.h"

#include <optional>

#include "platform/text/number.h"

namespace host::text {

namespace {

template <class T>
std::variant<T, std::string> Decide(const std::optional<T>& value, FieldRange range,
                                    const std::string& kind) {
  if (!value) return "Please enter " + kind + ".";
  const auto number = static_cast<double>(*value);
  if (number >= range.low && number <= range.high) return *value;
  return "Please enter " + kind + " between " + platform::GeneralText(range.low) + " and " +
         platform::GeneralText(range.high) + ".";
}

}  // namespace

std::variant<double, std::string> ReadNumberField(std::string_view text, FieldRange range) {
  const auto value =
      text.size() <= kFieldLength ? platform::ParseNumber(text) : std::optional<double>();
  return Decide(value, range, "a number");
}

std::variant<long long, std::string> ReadIntegerField(std::string_view text, FieldRange range) {
  const auto value =
      text.size() <= kFieldLength ? platform::ParseInteger(text) : std::optional<long long>();
  return Decide(value, range, "an integer");
}

}  // namespace host::text
