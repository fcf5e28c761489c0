// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/row_blocks.h"

#include <gmock/gmock.h>

using GUI::BlockMove;
using GUI::MergedBlocks;
using GUI::MoveBlocks;
using GUI::RowBlocks;
using testing::ElementsAre;
using testing::Pair;

TEST(RowBlocks, TouchingBlocksAreOne) {
  EXPECT_THAT(MergedBlocks({{5, 6}, {0, 1}, {2, 2}, {6, 9}, {11, 11}}),
              ElementsAre(Pair(0, 2), Pair(5, 9), Pair(11, 11)));
  EXPECT_TRUE(MergedBlocks({}).empty());
  EXPECT_THAT(MergedBlocks({{0, 9}, {2, 3}}), ElementsAre(Pair(0, 9)));
}

TEST(RowBlocks, BlocksMoveAsAWhole) {
  struct Case {
    BlockMove move;
    RowBlocks blocks;
    std::vector<int> order;
    RowBlocks moved;
  };
  const Case cases[] = {
      {BlockMove::kUp, {{1, 2}}, {1, 2, 0, 3, 4, 5}, {{0, 1}}},
      {BlockMove::kUp, {{1, 1}, {3, 4}}, {1, 0, 3, 4, 2, 5}, {{0, 0}, {2, 3}}},
      {BlockMove::kUp, {{0, 1}, {3, 3}}, {0, 1, 3, 2, 4, 5}, {{0, 1}, {2, 2}}},
      {BlockMove::kDown, {{1, 2}}, {0, 3, 1, 2, 4, 5}, {{2, 3}}},
      {BlockMove::kDown, {{1, 1}, {3, 3}}, {0, 2, 1, 4, 3, 5}, {{2, 2}, {4, 4}}},
      {BlockMove::kDown, {{3, 3}, {5, 5}}, {0, 1, 2, 4, 3, 5}, {{4, 4}, {5, 5}}},
      {BlockMove::kToTop, {{1, 1}, {4, 5}}, {1, 4, 5, 0, 2, 3}, {{0, 2}}},
      {BlockMove::kToBottom, {{0, 1}, {3, 3}}, {2, 4, 5, 0, 1, 3}, {{3, 5}}},
  };
  for (const Case& c : cases) {
    const GUI::MovedRows moved = MoveBlocks(6, c.blocks, c.move);
    EXPECT_EQ(moved.order, c.order);
    EXPECT_EQ(moved.blocks, c.moved);
    EXPECT_TRUE(moved.changed);
  }
}

TEST(RowBlocks, ABlockAtItsEdgeStays) {
  const auto unchanged = [](const RowBlocks& blocks, BlockMove move) {
    const GUI::MovedRows moved = MoveBlocks(4, blocks, move);
    return !moved.changed && moved.order == std::vector{0, 1, 2, 3} && moved.blocks == blocks;
  };
  EXPECT_TRUE(unchanged({{0, 1}}, BlockMove::kUp));
  EXPECT_TRUE(unchanged({{0, 1}}, BlockMove::kToTop));
  EXPECT_TRUE(unchanged({{2, 3}}, BlockMove::kDown));
  EXPECT_TRUE(unchanged({{2, 3}}, BlockMove::kToBottom));
  EXPECT_TRUE(unchanged({}, BlockMove::kToTop));
}
