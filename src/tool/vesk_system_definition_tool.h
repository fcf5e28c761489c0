// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/gui/tool.h"

/// The System Definition tool.
class VeskSystemDefinitionTool : public Framework::Tool {
 public:
  VeskSystemDefinitionTool();

  /// Attaches the tool when the project accepts it; null is ignored.
  void SetProject(OstProject* project) override;
  int Save() override;
};
