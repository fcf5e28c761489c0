// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <istream>

namespace platform::filters {

/// Up to `size` bytes of a source, fewer only at its end. Throws FilterError when it cannot be
/// read.
std::size_t ReadSource(std::istream& source, char* to, std::size_t size);

[[nodiscard]] bool IsAtEnd(std::istream& source);

}  // namespace platform::filters
