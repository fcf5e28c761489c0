// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/row_blocks.h"

#include <algorithm>
#include <numeric>

namespace GUI {

namespace {

MovedRows MoveByOne(int rowCount, const RowBlocks& blocks, int step) {
  MovedRows moved{std::vector<int>(static_cast<std::size_t>(rowCount)), {}, false};
  std::iota(moved.order.begin(), moved.order.end(), 0);
  const auto at = [&moved](int row) { return moved.order.begin() + row; };
  for (const auto& [first, last] : blocks) {
    const bool atEdge = step < 0 ? first == 0 : last == rowCount - 1;
    if (atEdge) {
      moved.blocks.emplace_back(first, last);
      continue;
    }
    // The neighbour goes to the block's other side.
    if (step < 0) {
      std::rotate(at(first - 1), at(first), at(last + 1));
    } else {
      std::rotate(at(first), at(last + 1), at(last + 2));
    }
    moved.blocks.emplace_back(first + step, last + step);
    moved.changed = true;
  }
  return moved;
}

MovedRows MoveToEdge(int rowCount, const RowBlocks& blocks, bool toTop) {
  std::vector<int> taken, left;
  int next = 0;
  const auto appendRows = [](std::vector<int>& rows, int first, int end) {
    for (int row = first; row < end; ++row) rows.push_back(row);
  };
  for (const auto& [first, last] : blocks) {
    appendRows(left, next, first);
    appendRows(taken, first, last + 1);
    next = last + 1;
  }
  appendRows(left, next, rowCount);
  const int count = static_cast<int>(taken.size());
  MovedRows moved{toTop ? std::move(taken) : std::move(left), {}, false};
  const std::vector<int>& rest = toTop ? left : taken;
  moved.order.insert(moved.order.end(), rest.begin(), rest.end());
  const int top = toTop ? 0 : rowCount - count;
  if (count > 0) moved.blocks.emplace_back(top, top + count - 1);
  moved.changed = !std::ranges::is_sorted(moved.order);
  return moved;
}

}  // namespace

RowBlocks MergedBlocks(RowBlocks blocks) {
  std::ranges::sort(blocks);
  RowBlocks merged;
  for (const RowBlock& block : blocks) {
    if (merged.empty() || block.first > merged.back().second + 1) {
      merged.push_back(block);
    } else {
      merged.back().second = std::max(merged.back().second, block.second);
    }
  }
  return merged;
}

MovedRows MoveBlocks(int rowCount, const RowBlocks& blocks, BlockMove move) {
  switch (move) {
    case BlockMove::kUp:
      return MoveByOne(rowCount, blocks, -1);
    case BlockMove::kDown:
      // Between blocks lies at least one row, so the order of the blocks does not matter.
      return MoveByOne(rowCount, blocks, 1);
    case BlockMove::kToTop:
      return MoveToEdge(rowCount, blocks, true);
    case BlockMove::kToBottom:
      return MoveToEdge(rowCount, blocks, false);
  }
  return {};
}

}  // namespace GUI
