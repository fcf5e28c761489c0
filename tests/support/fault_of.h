// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

namespace test {

/// What the Error that ends the call says; "no fault" when the call ends well.
template <class Error, class Call>
std::string FaultOf(Call&& call) {
  try {
    call();
  } catch (const Error& error) {
    return error.what();
  }
  return "no fault";
}

}  // namespace test
