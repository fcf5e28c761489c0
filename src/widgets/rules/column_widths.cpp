// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/column_widths.h"

#include <cmath>
#include <cstddef>
#include <optional>

namespace GUI {

namespace {

/// A column that its share would make too narrow.
std::optional<std::size_t> TooNarrow(const std::vector<ColumnWidth>& columns,
                                     const std::vector<bool>& fixed, double perWanted) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!fixed[i] && columns[i].wanted * perWanted < columns[i].minimum) return i;
  }
  return std::nullopt;
}

}  // namespace

std::vector<int> ShareWidth(int total, const std::vector<ColumnWidth>& columns) {
  std::vector<bool> fixed(columns.size(), false);
  double left = total, wanted = 0;
  for (const ColumnWidth& column : columns) wanted += column.wanted;
  // Fixing a column at its minimum takes width from the others, which may make another too narrow.
  while (const auto narrow = TooNarrow(columns, fixed, left / wanted)) {
    fixed[*narrow] = true;
    left -= columns[*narrow].minimum;
    wanted -= columns[*narrow].wanted;
  }

  std::vector<int> widths;
  double end = 0;
  int given = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (fixed[i]) {
      widths.push_back(columns[i].minimum);
      continue;
    }
    end += columns[i].wanted * left / wanted;
    widths.push_back(static_cast<int>(std::lround(end)) - given);
    given += widths.back();
  }
  return widths;
}

}  // namespace GUI
