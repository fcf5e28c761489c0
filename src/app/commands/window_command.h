// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Opens the project in the main window until it is closed.
/// Returns the exit status; throws OstException when the project cannot be opened or saved.
int RunWindowCommand(const CommandLine& line);

}  // namespace app
