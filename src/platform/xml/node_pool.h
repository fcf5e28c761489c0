// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>

/// malloc and its kin, but for memory of the size of a tree node, which comes from a pool. A large
/// tree is millions of nodes, and half the time of building one is the page faults of a heap that
/// grows page by page; the pool asks for its pages by the block, and gives an empty block back to
/// the system. Memory of malloc's own is taken back too. Safe to use from several threads.
namespace platform::xml::node_pool {

/// Makes the pool ready, once. Without it, or where the system refuses the pool's addresses,
/// malloc does it all.
void Prepare() noexcept;

[[nodiscard]] void* Allocate(std::size_t bytes) noexcept;
[[nodiscard]] void* Reallocate(void* memory, std::size_t bytes) noexcept;
void Free(void* memory) noexcept;
/// How much the memory holds; 0 for null.
[[nodiscard]] std::size_t SizeOf(void* memory) noexcept;

}  // namespace platform::xml::node_pool
