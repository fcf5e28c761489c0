// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

QtMessageHandler printMessage = nullptr;

/// The off-screen platform says of every window with a least size that it ignores it.
void PrintButSizeHints(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith("This plugin does not support propagateSizeHints"))
    printMessage(type, context, text);
}

}  // namespace

int main(int argc, char** argv) {
  // Off-screen by default, also when the program is started by hand on a desktop.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir runtimeFolder;
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toUtf8());
  printMessage = qInstallMessageHandler(PrintButSizeHints);
  // The style decides sizes and focus; a test must not depend on the desktop's.
  QApplication::setStyle("fusion");
  QApplication application(argc, argv);
  QApplication::setApplicationName("sysdef");
  QApplication::setOrganizationName("sysdef-tests");
  QStandardPaths::setTestModeEnabled(true);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
