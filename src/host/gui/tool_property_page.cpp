// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/tool_property_page.h"

#include "host/gui/tool.h"

namespace Framework {

ToolPropertyPage::ToolPropertyPage(const char* toolName, int dialogId, int /*reserved*/)
    : toolName_(toolName), dialogId_(dialogId) {}

ToolPropertyPage::~ToolPropertyPage() { delete window_; }

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

Tool* ToolPropertyPage::GetTool() const { return Tool::GetInstance(toolName_.c_str()); }

void ToolPropertyPage::CreateControls(QWidget* /*window*/) {}

}  // namespace Framework
