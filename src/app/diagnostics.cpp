// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/diagnostics.h"

#include <algorithm>
#include <iostream>

namespace app {

void TellError(const std::string& text) {
  std::string line = text;
  std::replace(line.begin(), line.end(), '\n', ' ');
  std::cerr << "sysdef: " << line << std::endl;
}

}  // namespace app
