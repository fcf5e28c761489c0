// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace platform::xml {

/// Lets libxml2 take the memory of tree nodes from a pool of their size. A large tree is millions
/// of them, and half the time of building one is the page faults of a heap that grows page by
/// page; the pool asks for its pages by the block, and gives an empty block back to the system.
/// Everything else stays with malloc, and so does memory that was taken before. Called once,
/// before other threads use libxml2.
void PoolNodes();

}  // namespace platform::xml
