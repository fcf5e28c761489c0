// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Checks the data of every page of every project and prints a finding a line.
/// Returns the exit status; throws OstException when the project cannot be opened or saved.
int RunCheckCommand(const CommandLine& line);

}  // namespace app
