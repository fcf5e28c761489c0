// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Prints what one page, or every page, shows as text tables; or why a page treats a value as it
/// does. Returns the exit status; throws OstException when the project cannot be opened or saved.
int RunShowCommand(const CommandLine& line);

}  // namespace app
