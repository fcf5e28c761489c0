// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <vector>

class OstProject;

/// One row of the page table: the support files that move a page's data.
struct PageTableRow {
  std::string page;  ///< registration name
  std::string inStylesheet;
  std::string outStylesheet;
  std::vector<std::string> fragments;  ///< empty: those that the stylesheet itself names
};

/// Reads the page table `pages.xml` of the project's support files. Throws OstException naming
/// the file and line when it is missing or cannot be read.
[[nodiscard]] std::vector<PageTableRow> ReadPageTable(const OstProject& project);
