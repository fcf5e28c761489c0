// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <map>
#include <vector>

#include "pages/illumination_config/rules/source_rows.h"

namespace GUI {
class CDynamicDataGrid;
}

namespace illumination_config {

/// The segments of one source's wheel as rows of a grid.
class WheelGrid {
 public:
  /// Describes the grid's columns; the grid outlives this.
  explicit WheelGrid(GUI::CDynamicDataGrid& grid);

  /// Shows these rows in place of all rows.
  void Show(const std::vector<WheelRow>& rows);
  /// The rows as they are now. An edited size keeps all digits that were typed and is shown
  /// rounded; one that was not edited, and a copy of it, is as it was.
  [[nodiscard]] std::vector<WheelRow> Take();

 private:
  [[nodiscard]] double SizeOf(int row) const;

  GUI::CDynamicDataGrid& grid_;
  std::map<unsigned, double> sizes_;  ///< degrees, by row id
};

}  // namespace illumination_config
