// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

namespace app {

/// Writes one line "sysdef: TEXT" to the standard error stream; line breaks become blanks.
void TellError(const std::string& text);

}  // namespace app
