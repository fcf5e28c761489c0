// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "framework/tool_name.h"
#include "host/gui/tool_frame.h"

class VeskSysDefToolFrame : public Framework::ToolFrame {
 public:
  VeskSysDefToolFrame() : ToolFrame(VeskSystemDefinition::kToolName) {}
};
