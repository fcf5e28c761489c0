// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "framework/tool_name.h"
#include "host/gui/tool_view.h"

class VeskSysDefToolView : public Framework::ToolView {
 public:
  VeskSysDefToolView() : ToolView(VeskSystemDefinition::kToolName) {}

  bool Activated(const char* pageName) override { return ToolView::Activated(pageName); }
};
