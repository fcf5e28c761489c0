// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <stdexcept>

namespace platform::filters {

/// A container or a key that cannot be taken; what() is one line.
class FilterError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace platform::filters
