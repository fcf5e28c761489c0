// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

/// What a project and a document template know of a tool.
class OstTool {
 public:
  virtual ~OstTool() = default;
  [[nodiscard]] virtual const char* GetToolName() const = 0;
};
