// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <QApplication>
#include <QtGlobal>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/command_line.h"
#include "app/commands/check_command.h"
#include "app/commands/export_command.h"
#include "app/commands/import_command.h"
#include "app/commands/pack_command.h"
#include "app/commands/script_command.h"
#include "app/commands/show_command.h"
#include "app/commands/window_command.h"
#include "app/diagnostics.h"
#include "app/exit_status.h"
#include "app/wrong_use.h"
#include "host/gui/program_style.h"
#include "host/project/ost_command_line_info.h"

namespace {

using Verb = app::CommandLine::Verb;

int Run(const app::CommandLine& line) {
  switch (line.verb) {
    case Verb::kShow:
      return app::RunShowCommand(line);
    case Verb::kExport:
      return app::RunExportCommand(line);
    case Verb::kImport:
      return app::RunImportCommand(line);
    case Verb::kScript:
      return app::RunScriptCommand(line);
    case Verb::kCheck:
      return app::RunCheckCommand(line);
    case Verb::kPack:
      return app::RunPackCommand(line);
    case Verb::kUnpack:
      return app::RunUnpackCommand(line);
    case Verb::kKey:
      return app::RunKeyCommand(line);
    case Verb::kWindow:
      break;
  }
  return app::RunWindowCommand(line);
}

/// Qt's notes about folders of the login and about its off-screen platform are nothing a person at
/// the command line asked for.
void PrintQtMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                    const QString& message) {
  if (message.startsWith(QLatin1String("QStandardPaths: "))) return;
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  std::fprintf(stderr, "%s\n", qPrintable(message));
}

void PrepareApplication(QApplication& application) {
  QApplication::setApplicationName(QStringLiteral("sysdef"));
  QApplication::setOrganizationName(QStringLiteral("sysdef"));
  QApplication::setApplicationDisplayName(QStringLiteral("System Definition"));
  Framework::InstallProgramStyle(application);
  // Qt takes the person's locale for everything; numbers in files must not follow it.
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace

int main(int argc, char** argv) {
  const auto parsed = app::ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
  if (!parsed.output.empty()) std::fputs(parsed.output.c_str(), stdout);
  if (!parsed.error.empty()) app::TellError(parsed.error);
  if (!parsed.command) return parsed.status;

  OstCommandLineInfo::c_instance.nonInteractive = parsed.command->nonInteractive;
  qInstallMessageHandler(PrintQtMessage);
  // Only the window needs a display.
  if (parsed.command->verb != Verb::kWindow) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  PrepareApplication(application);
  try {
    return Run(*parsed.command);
  } catch (const app::WrongUse& error) {
    app::TellError(error.what());
    return app::kWrongUse;
  } catch (const std::exception& error) {
    app::TellError(error.what());
    return app::kProjectFailed;
  }
}
