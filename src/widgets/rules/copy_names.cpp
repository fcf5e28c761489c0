// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/copy_names.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "platform/text/number.h"

namespace GUI {

namespace {

struct CopyOf {
  std::string_view text;
  long long number = 1;
};

bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

/// What a name of this form is a copy of, and which one: "Copy of T", "Copy (N) of T" with N > 1.
std::optional<CopyOf> ReadCopyName(std::string_view name) {
  if (!TakePrefix(name, "Copy ")) return std::nullopt;
  if (TakePrefix(name, "of ")) return CopyOf{name, 1};
  if (!TakePrefix(name, "(")) return std::nullopt;
  const std::size_t digits = std::min(name.find_first_not_of("0123456789"), name.size());
  const long long number = platform::LeadingInteger(name.substr(0, digits));
  name.remove_prefix(digits);
  if (number <= 1 || !TakePrefix(name, ") of ")) return std::nullopt;
  return CopyOf{name, number};
}

}  // namespace

void CopyNames::Add(const std::string& text) {
  if (const auto copy = ReadCopyName(text)) {
    used_[std::string(copy->text)].numbers.insert(copy->number);
  }
}

std::string CopyNames::NameFor(const std::string& text, long long totalRows) {
  Used& used = used_[text];
  // Names are only added here, so the search goes on where the last one ended.
  while (used.numbers.contains(used.firstToTry)) ++used.firstToTry;
  const long long number = used.firstToTry <= totalRows ? used.firstToTry : 0;
  std::string name =
      number <= 1 ? "Copy of " + text : "Copy (" + std::to_string(number) + ") of " + text;
  Add(name);
  return name;
}

}  // namespace GUI
