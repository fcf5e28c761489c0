// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace app {

struct CommandLine;

/// Puts a file into a container: compressed unless told otherwise, enciphered when a key file is
/// given. The output appears whole or not at all. Returns the exit status; throws FileError,
/// FilterError, or WrongUse for a container that would do neither.
int RunPackCommand(const CommandLine& line);

/// Takes a container's content out, into a file that appears whole or not at all, or to standard
/// output, where only the exit status tells that all came. Throws as RunPackCommand.
int RunUnpackCommand(const CommandLine& line);

/// Makes a key file. Throws FileError, also when one is there already.
int RunKeyCommand(const CommandLine& line);

}  // namespace app
