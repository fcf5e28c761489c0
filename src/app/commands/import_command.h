// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Reads a page's data object, asks the page's findings, applies the page and saves.
/// Returns the exit status; throws OstException when the project cannot be opened or saved.
int RunImportCommand(const CommandLine& line);

}  // namespace app
