// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <string>

#include "host/gui/class_registry.h"

namespace Framework {

class ToolView;

/// The frame of a tool: a widget that holds the tool's view.
class ToolFrame : public QWidget, public DynamicObject {
 public:
  explicit ToolFrame(const char* toolName);

  /// The frame owns the view from then on.
  void SetView(ToolView* view);
  [[nodiscard]] ToolView* View() const noexcept { return view_; }
  [[nodiscard]] const std::string& ToolName() const noexcept { return toolName_; }

 private:
  std::string toolName_;
  ToolView* view_ = nullptr;
};

}  // namespace Framework
