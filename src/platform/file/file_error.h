// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <stdexcept>
#include <string>

namespace platform {

/// A file that cannot be read or written; what() names it and the reason on one line.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace platform
