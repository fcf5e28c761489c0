// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/export_command.h"

#include <iostream>

#include "app/command_line.h"
#include "app/exit_status.h"
#include "app/page_reading.h"
#include "app/session.h"
#include "host/gui/page_services.h"

namespace app {

int RunExportCommand(const CommandLine& line) {
  const Session session(line.projects.front());
  RequirePage(line.page);
  const auto& services = ReadPage(session, line.page);
  const auto data = services.ExportData();
  std::cout << platform::xml::ToText(data.Root(), platform::xml::TextForm::kIndented) << std::flush;
  return kDone;
}

}  // namespace app
