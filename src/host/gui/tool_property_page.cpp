// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/tool_property_page.h"

#include <QApplication>
#include <QEvent>

#include "host/gui/tool.h"

namespace Framework {

namespace {

/// Keeps from an object, and from all who listen to its events, that it loses the focus.
class FocusOutSilencer : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    return event->type() == QEvent::FocusOut;
  }
};

void TakeFocusFrom(QWidget& widget) {
  FocusOutSilencer silencer;
  // The filter that was installed last is the first that is asked.
  widget.installEventFilter(&silencer);
  widget.clearFocus();
}

}  // namespace

ToolPropertyPage::ToolPropertyPage(const char* toolName, int dialogId, int /*reserved*/)
    : toolName_(toolName), dialogId_(dialogId) {}

ToolPropertyPage::~ToolPropertyPage() { CloseWindow(); }

void ToolPropertyPage::InitDialog() { UpdateData(0); }

int ToolPropertyPage::UpdateData(int /*save*/) { return 1; }

void ToolPropertyPage::Modified() {
  if (Tool* tool = GetTool()) tool->MarkModified();
}

QWidget* ToolPropertyPage::Window() {
  if (ToolPropertyPage* wrapped = WrappedPage()) return wrapped->Window();
  if (!window_) {
    window_ = new QWidget;
    window_->setWindowTitle(title_);
    window_->setAccessibleName(title_);
    CreateControls(window_);
  }
  return window_;
}

void ToolPropertyPage::CloseWindow() {
  if (ToolPropertyPage* wrapped = WrappedPage()) return wrapped->CloseWindow();
  QWidget* const focus = QApplication::focusWidget();
  if (window_ && focus && (focus == window_ || window_->isAncestorOf(focus))) TakeFocusFrom(*focus);
  delete window_;
}

Tool* ToolPropertyPage::GetTool() const { return Tool::GetInstance(toolName_.c_str()); }

void ToolPropertyPage::CreateControls(QWidget* /*window*/) {}

}  // namespace Framework
