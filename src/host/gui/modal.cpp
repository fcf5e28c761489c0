// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/modal.h"

#include <QDialog>
#include <utility>

#include "host/project/ost_command_line_info.h"

namespace {

ModalRunner& Runner() {
  static ModalRunner runner;
  return runner;
}

}  // namespace

int RunModal(QDialog& dialog) {
  if (const ModalRunner runner = Runner()) return runner(dialog);
  if (OstCommandLineInfo::c_instance.nonInteractive) return QDialog::Rejected;
  return dialog.exec();
}

void SetModalRunner(ModalRunner runner) { Runner() = std::move(runner); }
