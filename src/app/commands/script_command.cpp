// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/script_command.h"

#include <iostream>

#include "app/command_line.h"
#include "app/diagnostics.h"
#include "app/exit_status.h"
#include "app/locked_save.h"
#include "app/session.h"
#include "automation/script_runner.h"

namespace app {

int RunScriptCommand(const CommandLine& line) {
  const Session session(line.projects.front());
  const auto save = [&session] {
    const auto failure = SaveLocked(session);
    if (failure) TellError(*failure);
    return !failure;
  };
  automation::ScriptRunner runner(session.Pages(), save, line.arguments, std::cout);
  if (const auto error = runner.Run(line.file)) {
    TellError(*error);
    return kRefused;
  }
  return kDone;
}

}  // namespace app
