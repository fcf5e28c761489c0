// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

/// How the program ends.
enum ExitStatus : int {
  kDone = 0,
  kRefused = 1,  ///< errors were found, or an edit was refused
  kWrongUse = 2,
  kProjectFailed = 3,  ///< the project could not be opened or saved
};

}  // namespace app
