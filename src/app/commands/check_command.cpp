// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/check_command.h"

#include <algorithm>
#include <iostream>

#include "app/command_line.h"
#include "app/diagnostics.h"
#include "app/exit_status.h"
#include "app/page_reading.h"
#include "app/session.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/project/database_schema.h"
#include "host/project/ost_exception.h"
#include "host/project/run_time_db.h"

namespace app {

namespace {

struct Totals {
  std::size_t pages = 0;
  std::size_t errors = 0;
  std::size_t warnings = 0;
};

std::string Counted(std::size_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void Print(const std::string& page, const Finding& finding, Totals& totals) {
  const bool error = finding.severity == Severity::kError;
  ++(error ? totals.errors : totals.warnings);
  std::string text = finding.text;
  std::replace(text.begin(), text.end(), '\n', ' ');
  std::cout << page << ": " << (error ? "error " : "warning ") << finding.rule << ": " << text
            << '\n';
}

void CheckSchema(const Session& session, Totals& totals) {
  const auto database = platform::xml::Document::Parse(session.Database().Text());
  for (const auto& fault : session.Schema().Validate(database)) {
    const std::string place = fault.line ? "line " + std::to_string(fault.line) + ": " : "";
    Print("RunTimeDB", {Severity::kError, "database.schema", {}, place + fault.text}, totals);
  }
}

void CheckPage(const Session& session, const std::string& page, Totals& totals) {
  ++totals.pages;
  try {
    for (const Finding& finding : ReadPage(session, page).CheckData()) {
      Print(page, finding, totals);
    }
  } catch (const OstException& error) {
    Print(page, {Severity::kError, "database.read", {}, error.what()}, totals);
  }
}

Totals CheckProject(const std::string& project) {
  const Session session(project);
  Totals totals;
  CheckSchema(session, totals);
  for (const std::string& page : Framework::PageHost::Names()) CheckPage(session, page, totals);
  std::cout << project << ": checked " << Counted(totals.pages, "page") << ": "
            << Counted(totals.errors, "error") << ", " << Counted(totals.warnings, "warning")
            << std::endl;
  return totals;
}

}  // namespace

int RunCheckCommand(const CommandLine& line) {
  int status = kDone;
  for (const std::string& project : line.projects) {
    try {
      if (CheckProject(project).errors > 0) status = std::max<int>(status, kRefused);
    } catch (const OstException& error) {
      TellError(error.what());
      status = kProjectFailed;
    }
  }
  return status;
}

}  // namespace app
