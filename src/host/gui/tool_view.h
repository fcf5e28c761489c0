// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <map>
#include <string>

#include "host/gui/class_registry.h"
#include "host/gui/page_selection.h"

class QScrollArea;
class QStackedWidget;

namespace Framework {

class Tool;

/// The view of a tool: shows one of the tool's pages at a time.
class ToolView : public QWidget, public DynamicObject, public PageSelection {
  Q_OBJECT

 public:
  explicit ToolView(const char* toolName);

  /// Shows the page, opening it at the first call. False when it cannot be opened or the page
  /// shown before does not let go; LastError then says why (empty when a page refused).
  bool Activated(const char* pageName) override;

  [[nodiscard]] const std::string& Current() const noexcept { return current_; }
  [[nodiscard]] const std::string& LastError() const noexcept { return lastError_; }
  [[nodiscard]] const std::string& ToolName() const noexcept { return toolName_; }

 Q_SIGNALS:
  /// A control of a page was edited by the person; the page may not have taken it yet.
  void Edited();

 private:
  QScrollArea* Show(QWidget* window);
  void Watch(QWidget* window);

  std::string toolName_;
  std::string current_;
  std::string lastError_;
  QStackedWidget* stack_;
  std::map<std::string, QScrollArea*> areas_;
};

}  // namespace Framework
