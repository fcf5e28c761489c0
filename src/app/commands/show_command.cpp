// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/show_command.h"

#include <iostream>
#include <utility>

#include "app/command_line.h"
#include "app/exit_status.h"
#include "app/page_reading.h"
#include "app/session.h"
#include "app/wrong_use.h"
#include "automation/text_tables.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/gui/tool_property_page.h"

namespace app {

namespace {

void Show(const Session& session, const std::string& page) {
  QWidget* window = session.Pages().Open(page).Window();
  std::cout << automation::TextTables(*window);
}

}  // namespace

int RunShowCommand(const CommandLine& line) {
  const Session session(line.projects.front());
  if (!line.page.empty()) RequirePage(line.page);
  if (line.explain) {
    const auto why = ReadPage(session, line.page).Explain(*line.explain);
    if (!why) throw WrongUse("The page " + line.page + " explains nothing");
    std::cout << *why << std::endl;
    return kDone;
  }
  if (!line.page.empty()) {
    Show(session, line.page);
  } else {
    bool isFirst = true;
    for (const std::string& page : Framework::PageHost::Names()) {
      if (!std::exchange(isFirst, false)) std::cout << '\n';
      Show(session, page);
    }
  }
  std::cout << std::flush;
  return kDone;
}

}  // namespace app
