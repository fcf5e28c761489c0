// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <set>
#include <string>
#include <unordered_map>

namespace GUI {

/// The names that copies of rows get in one column: "Copy of T", "Copy (2) of T" and so on, the
/// smallest number that no text of the column uses.
class CopyNames {
 public:
  /// Counts in a text that stands in the column.
  void Add(const std::string& text);
  /// A name for a copy of text, free among at most totalRows numbers; it counts as used at once.
  std::string NameFor(const std::string& text, long long totalRows);

 private:
  struct Used {
    std::set<long long> numbers;
    /// All numbers below are used.
    long long firstToTry = 1;
  };
  std::unordered_map<std::string, Used> used_;
};

}  // namespace GUI
