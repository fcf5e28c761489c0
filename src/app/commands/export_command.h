// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Prints a page's data object as the output archive writes it.
/// Returns the exit status; throws OstException when the project cannot be opened or saved.
int RunExportCommand(const CommandLine& line);

}  // namespace app
