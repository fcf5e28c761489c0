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
  [[nodiscard]] virtual bool IsLeft(const QWidget& /*field*/, Qt::FocusReason reason) const {
    return reason != Qt::PopupFocusReason;
  }
  virtual bool Tell(QObject& /*field*/, QEvent& /*event*/) {
    then_();
    return false;
  }
  bool eventFilter(QObject* field, QEvent* event) override {
    const bool isLeft =
        event->type() == QEvent::FocusOut &&
        IsLeft(*static_cast<QWidget*>(field), static_cast<QFocusEvent*>(event)->reason());
    return isLeft && Tell(*field, *event);
  }

  std::function<void()> then_;
};

class LeaveForAnotherFilter : public LeaveFilter {
 public:
  using LeaveFilter::LeaveFilter;

 protected:
  [[nodiscard]] bool IsLeft(const QWidget& field, Qt::FocusReason reason) const override {
    return field.isVisible() && reason != Qt::PopupFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
  }
  /// The field is done with the event first: what is told may give it the focus back, with its
  /// text selected.
  bool Tell(QObject& field, QEvent& event) override {
    field.event(&event);
    then_();
    return true;
  }
};

}  // namespace

void WhenLeft(QWidget& field, std::function<void()> then) {
  new LeaveFilter(field, std::move(then));
}

void WhenLeftForAnother(QWidget& field, std::function<void()> then) {
  new LeaveForAnotherFilter(field, std::move(then));
}

}  // namespace GUI
