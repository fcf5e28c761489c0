// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/project/page_table.h"

namespace Framework {

class PageServices;
class Tool;
class ToolPropertyPage;

/// The open pages of a tool: makes wrappers by registration name, gives them their stylesheets
/// from the page table, and drives them.
class PageHost {
 public:
  explicit PageHost(Tool& tool);
  ~PageHost();
  PageHost(const PageHost&) = delete;
  PageHost& operator=(const PageHost&) = delete;

  /// Registration names, in registry order.
  [[nodiscard]] static std::vector<std::string> Names();
  /// The title of a page, which need not be open; its name when no tool can make it.
  [[nodiscard]] QString Title(const std::string& name) const;

  /// The wrapper of a page with its stylesheets loaded, made at the first call; its window is not
  /// made and nothing is read yet. Throws OstException when there is no such page, no row of the
  /// page table names it, or one of its stylesheets does not load (the message names the file).
  ToolPropertyPage& Create(const std::string& name);
  /// Create, then the window is made and the page initialised with data at the first call.
  /// Throws OstException also when the data cannot be read.
  ToolPropertyPage& Open(const std::string& name);
  /// Initialises a page anew from the run-time database. Throws as Open.
  void Reopen(const std::string& name);
  /// Reopen after the page dropped what was edited and not applied.
  void Revert(const std::string& name);
  void RevertAll();
  /// Applies one page; true when it was stored.
  bool Apply(const std::string& name);
  /// Applies all open pages in registry order, up to the first that refuses, whose name is
  /// returned; empty when all were stored.
  std::string ApplyAll();

  [[nodiscard]] bool IsOpen(const std::string& name) const;
  [[nodiscard]] Tool& GetTool() noexcept { return tool_; }
  static PageServices& Services(ToolPropertyPage& page);

 private:
  struct OpenPage;

  [[nodiscard]] const PageTableRow& TableRow(const std::string& name);
  void Configure(ToolPropertyPage& page, const PageTableRow& row) const;
  void Initialise(const std::string& name, OpenPage& open);
  OpenPage& Made(const std::string& name);

  Tool& tool_;
  std::vector<PageTableRow> table_;
  std::map<std::string, std::unique_ptr<OpenPage>> pages_;
};

}  // namespace Framework
