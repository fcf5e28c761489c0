// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/tool_frame.h"

#include <QVBoxLayout>

#include "host/gui/tool_view.h"

namespace Framework {

ToolFrame::ToolFrame(const char* toolName) : toolName_(toolName) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
}

void ToolFrame::SetView(ToolView* view) {
  delete view_;
  view_ = view;
  layout()->addWidget(view);
}

}  // namespace Framework
