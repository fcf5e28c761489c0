// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <stdexcept>
#include <string>

namespace app {

/// A command that asks for something that is not there, such as a page nobody registered.
class WrongUse : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace app
