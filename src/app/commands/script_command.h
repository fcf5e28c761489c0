// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Runs a script against the project's pages.
/// Returns the exit status; throws OstException when the project cannot be opened or saved.
int RunScriptCommand(const CommandLine& line);

}  // namespace app
