// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <utility>
#include <vector>

namespace GUI {

/// A run of rows, first and last.
using RowBlock = std::pair<int, int>;
using RowBlocks = std::vector<RowBlock>;

enum class BlockMove { kUp, kDown, kToTop, kToBottom };

/// Rows in a new order: order[i] is the old place of the row now at i; blocks is where the moved
/// blocks stand now.
struct MovedRows {
  std::vector<int> order;
  RowBlocks blocks;
  bool changed = false;
};

/// The blocks in row order, those that touch or overlap made one.
[[nodiscard]] RowBlocks MergedBlocks(RowBlocks blocks);
/// Moves each block (merged, within rowCount) as a whole by one row, or stacks all at the edge.
[[nodiscard]] MovedRows MoveBlocks(int rowCount, const RowBlocks& blocks, BlockMove move);

}  // namespace GUI
