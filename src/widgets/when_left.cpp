// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/when_left.h"

#include <QFocusEvent>

namespace GUI {

namespace {

class LeaveFilter : public QObject {
 public:
  LeaveFilter(QWidget& field, std::function<void()> then)
      : QObject(&field), then_(std::move(then)) {
    field.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* field, QEvent* event) override {
    const bool isLeft = event->type() == QEvent::FocusOut &&
                        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason;
    if (isLeft) then_();
    return QObject::eventFilter(field, event);
  }

 private:
  std::function<void()> then_;
};

}  // namespace

void WhenLeft(QWidget& field, std::function<void()> then) {
  new LeaveFilter(field, std::move(then));
}

}  // namespace GUI
