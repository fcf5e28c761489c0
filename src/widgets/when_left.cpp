// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/when_left.h"

#include <QFocusEvent>

namespace GUI {

namespace {

using Counts = bool (*)(const QWidget& field, Qt::FocusReason reason);

class LeaveFilter : public QObject {
 public:
  LeaveFilter(QWidget& field, Counts counts, std::function<void()> then)
      : QObject(&field), counts_(counts), then_(std::move(then)) {
    field.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* field, QEvent* event) override {
    const bool isLeft =
        event->type() == QEvent::FocusOut &&
        counts_(*static_cast<QWidget*>(field), static_cast<QFocusEvent*>(event)->reason());
    if (isLeft) then_();
    return QObject::eventFilter(field, event);
  }

 private:
  Counts counts_;
  std::function<void()> then_;
};

bool IsLeft(const QWidget& /*field*/, Qt::FocusReason reason) {
  return reason != Qt::PopupFocusReason;
}

bool IsLeftForAnother(const QWidget& field, Qt::FocusReason reason) {
  return field.isVisible() && IsLeft(field, reason) && reason != Qt::ActiveWindowFocusReason;
}

}  // namespace

void WhenLeft(QWidget& field, std::function<void()> then) {
  new LeaveFilter(field, IsLeft, std::move(then));
}

void WhenLeftForAnother(QWidget& field, std::function<void()> then) {
  new LeaveFilter(field, IsLeftForAnother, std::move(then));
}

}  // namespace GUI
