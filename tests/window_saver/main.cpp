// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// window_saver PROJECT once|loop: works the real window without a person. It types another start
// angle into the pixel-shift page and saves, once or until it is killed; message boxes go to
// standard error, "saved" or "not saved" to standard output.

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "app/main_window.h"
#include "host/gui/message_box.h"

namespace {

template <class Found>
Found& Only(QWidget& window, auto isIt) {
  for (auto* each : window.findChildren<Found*>()) {
    if (isIt(*each)) return *each;
  }
  throw std::runtime_error("a control is missing");
}

void Save(QWidget& window, int value) {
  auto& box = Only<QLineEdit>(window, [](const QLineEdit& each) {
    return each.accessibleName() == QLatin1String("Start of 1st Subframe");
  });
  box.selectAll();
  QTest::keyClicks(&box, QString::number(value % 360));
  Only<QPushButton>(window, [](const QPushButton& each) {
    return each.text().remove(QLatin1Char('&')) == QLatin1String("Save");
  }).click();
}

int TellBox(const std::string& text, const std::string& /*caption*/, unsigned style) {
  std::fprintf(stderr, "%s\n", text.c_str());
  return msgbox::DefaultAnswer(style);
}

int Run(const char* project, bool loop) {
  SetMessageBoxResponder(TellBox);
  app::MainWindow window;
  window.Open(std::string(project));
  window.show();
  auto& pages = Only<QListWidget>(window, [](const QListWidget& each) {
    return !each.findItems(QStringLiteral("Pixmeld"), Qt::MatchStartsWith).isEmpty();
  });
  pages.setCurrentItem(pages.findItems(QStringLiteral("Pixmeld"), Qt::MatchStartsWith).at(0));
  int value = 100;
  do {
    Save(window, value++);
  } while (loop);
  std::puts(window.isWindowModified() ? "not saved" : "saved");
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  // Qt's notes about its off-screen platform.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  try {
    return Run(argv[1], std::strcmp(argv[2], "loop") == 0);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "sysdef: %s\n", error.what());
    return 3;
  }
}
