// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace app {

/// What the person asked for.
struct CommandLine {
  enum class Verb { kWindow, kShow, kExport, kImport, kScript, kCheck, kPack, kUnpack, kKey };

  Verb verb = Verb::kWindow;
  std::vector<std::string> projects;   ///< one, but for check
  std::string page;                    ///< empty for all
  std::string file;                    ///< import: empty for standard input
  std::string output;                  ///< of pack and unpack; empty for standard output
  std::string keyFile;                 ///< of pack and unpack; empty for none
  bool keepSize = false;               ///< pack: not compressed
  std::vector<std::string> arguments;  ///< of a script
  std::optional<std::string> explain;
  bool force = false;
  bool nonInteractive = false;
};

/// The outcome of reading the command line: a command, or a text and the status to end with.
struct ParsedCommandLine {
  std::optional<CommandLine> command;
  std::string output;  ///< for standard output
  std::string error;   ///< for standard error, one line without the program's name
  int status = 0;
};

[[nodiscard]] ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace app
