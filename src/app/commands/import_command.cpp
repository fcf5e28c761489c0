// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/import_command.h"

#include <iostream>
#include <iterator>
#include <optional>

#include "app/command_line.h"
#include "app/diagnostics.h"
#include "app/exit_status.h"
#include "app/locked_save.h"
#include "app/page_reading.h"
#include "app/session.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/project/ost_exception.h"
#include "host/project/run_time_db.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/xml/xml_error.h"

namespace app {

namespace {

std::string ReadInput(const std::string& file) {
  if (file.empty()) {
    return {std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>()};
  }
  const auto bytes = platform::ReadFile(file);
  if (!bytes) throw platform::FileError(file + ": no such file");
  return *bytes;
}

/// Takes the input into the page's data; a text when it is refused.
std::optional<std::string> Import(Framework::PageServices& services, const CommandLine& line) {
  const std::string name = line.file.empty() ? "standard input" : line.file;
  try {
    services.ImportData(platform::xml::Document::Parse(ReadInput(line.file)));
  } catch (const platform::FileError& error) {
    return error.what();
  } catch (const std::exception& error) {
    return name + ": " + error.what();
  }
  if (line.force) return std::nullopt;
  for (const Finding& finding : services.CheckData()) {
    if (finding.severity == Severity::kError) return line.page + ": " + finding.text;
  }
  return std::nullopt;
}

}  // namespace

int RunImportCommand(const CommandLine& line) {
  const Session session(line.projects.front());
  RequirePage(line.page);
  auto& services = Framework::PageHost::Services(session.Pages().Open(line.page));
  if (const auto refusal = Import(services, line)) {
    TellError(*refusal);
    return kRefused;
  }
  if (!session.Pages().Apply(line.page)) {
    TellError(line.page + ": the page refused the data");
    return kRefused;
  }
  if (!session.Database().Modified()) return kDone;
  if (const auto failure = SaveLocked(session)) throw OstException(*failure);
  return kDone;
}

}  // namespace app
