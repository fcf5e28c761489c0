// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/node_pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

#include "platform/xml/library.h"

namespace {

namespace node_pool = platform::xml::node_pool;

constexpr std::size_t kNode = 120;

class NodePool : public testing::Test {
 protected:
  void SetUp() override { platform::xml::PrepareLibraries(); }
};

/// Memory that is marked as one's own, to show that nobody else's is the same.
struct Mine {
  explicit Mine(std::uint32_t number)
      : mark(number), memory(static_cast<std::uint32_t*>(node_pool::Allocate(kNode))) {
    std::fill_n(memory, kNode / sizeof mark, mark);
  }
  [[nodiscard]] bool IsIntact() const {
    return std::all_of(memory, memory + kNode / sizeof mark,
                       [this](std::uint32_t each) { return each == mark; });
  }
  std::uint32_t mark;
  std::uint32_t* memory;
};

/// Takes and gives back at random, mostly taking and mostly giving back by turns, over several
/// blocks; every slot is checked.
void Exercise(unsigned seed) {
  std::mt19937 random(seed);
  std::vector<Mine> taken;
  for (std::uint32_t i = 0; i < 200'000; ++i) {
    const bool isFalling = (i / 50'000) % 2 == 1;
    const bool takes = (random() % 4 == 0) == isFalling;
    if (taken.empty() || takes) {
      taken.emplace_back(i);
      continue;
    }
    std::swap(taken[random() % taken.size()], taken.back());
    ASSERT_TRUE(taken.back().IsIntact());
    node_pool::Free(taken.back().memory);
    taken.pop_back();
  }
  for (const Mine& each : taken) {
    ASSERT_TRUE(each.IsIntact());
    node_pool::Free(each.memory);
  }
}

TEST_F(NodePool, SlotsAreApartAndComeAgain) {
  for (unsigned round = 0; round < 3; ++round) Exercise(round);
}

TEST_F(NodePool, ThreadsShareIt) {
  std::vector<std::thread> threads;
  for (unsigned each = 0; each < 3; ++each) threads.emplace_back(Exercise, each);
  for (std::thread& thread : threads) thread.join();
}

TEST_F(NodePool, OtherSizesAndResizingKeepTheContent) {
  for (const std::size_t size : {std::size_t{1}, kNode, std::size_t{128}, std::size_t{5000}}) {
    auto* memory = static_cast<char*>(node_pool::Allocate(size));
    std::memset(memory, 'x', size);
    EXPECT_GE(node_pool::SizeOf(memory), size);
    memory = static_cast<char*>(node_pool::Reallocate(memory, 2 * size));
    EXPECT_EQ(std::count(memory, memory + size, 'x'), static_cast<std::ptrdiff_t>(size));
    memory = static_cast<char*>(node_pool::Reallocate(memory, 1));
    EXPECT_EQ(*memory, 'x');
    node_pool::Free(memory);
  }
  node_pool::Free(nullptr);
  EXPECT_EQ(node_pool::SizeOf(nullptr), 0u);
}

}  // namespace
