// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/tool_view.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "host/gui/page_host.h"
#include "host/gui/tool.h"
#include "host/gui/tool_property_page.h"
#include "host/project/ost_exception.h"

namespace Framework {

ToolView::ToolView(const char* toolName) : toolName_(toolName), stack_(new QStackedWidget(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(stack_);
}

bool ToolView::Activated(const char* pageName) {
  lastError_.clear();
  Tool* tool = Tool::GetInstance(toolName_.c_str());
  if (!tool) {
    lastError_ = "The tool " + toolName_ + " is not running";
    return false;
  }
  if (current_ == pageName) return true;
  PageHost& pages = tool->Pages();
  try {
    if (!current_.empty() && !pages.Open(current_).OnKillActive()) return false;
    ToolPropertyPage& page = pages.Open(pageName);
    QScrollArea*& area = areas_[pageName];
    if (!area) area = Show(page.Window());
    if (page.NeedUpdate()) page.InitDialog();
    if (!page.OnSetActive()) return false;
    stack_->setCurrentWidget(area);
    current_ = pageName;
    return true;
  } catch (const OstException& error) {
    areas_.erase(pageName);
    lastError_ = error.what();
    return false;
  }
}

QScrollArea* ToolView::Show(QWidget* window) {
  auto* area = new QScrollArea(stack_);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(window);
  // A scroll area is a stop of its own for the keyboard otherwise.
  area->setFocusPolicy(Qt::NoFocus);
  stack_->addWidget(area);
  Watch(window);
  return area;
}

void ToolView::Watch(QWidget* window) {
  for (auto* box : window->findChildren<QLineEdit*>()) {
    connect(box, &QLineEdit::textEdited, this, &ToolView::Edited);
  }
  for (auto* list : window->findChildren<QComboBox*>()) {
    connect(list, &QComboBox::activated, this, &ToolView::Edited);
  }
}

}  // namespace Framework
