// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <vector>

namespace GUI {

struct ColumnWidth {
  int wanted = 0;
  int minimum = 0;
};

/// Shares total among columns in the proportion of their wanted widths (above 0), none below its
/// minimum. Where total allows it, the widths add up to it; otherwise they are the minimums.
[[nodiscard]] std::vector<int> ShareWidth(int total, const std::vector<ColumnWidth>& columns);

}  // namespace GUI
