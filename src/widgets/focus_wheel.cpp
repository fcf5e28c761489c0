// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/focus_wheel.h"

#include <QEvent>
#include <QWidget>

namespace GUI {

namespace {

class WheelFilter : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
    event->ignore();  // the page may scroll
    return true;
  }
};

}  // namespace

void TurnOnlyWithFocus(QWidget& control) {
  control.setFocusPolicy(Qt::StrongFocus);
  control.installEventFilter(new WheelFilter(&control));
}

}  // namespace GUI
