// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/main_window.h"

#include <QApplication>
#include <QMainWindow>

QWidget* HostMainWindow() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (qobject_cast<QMainWindow*>(widget) != nullptr && widget->isVisible()) return widget;
  return nullptr;
}
