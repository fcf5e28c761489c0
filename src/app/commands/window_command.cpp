// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/window_command.h"

#include <QApplication>

#include "app/command_line.h"
#include "app/main_window.h"

namespace app {

int RunWindowCommand(const CommandLine& line) {
  MainWindow window;
  window.Open(line.projects.front());
  window.show();
  return QApplication::exec();
}

}  // namespace app
