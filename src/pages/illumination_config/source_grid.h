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

/// The sources as rows of a grid, each with the wheel it is edited with.
class SourceGrid {
 public:
  static constexpr int kKind = 0, kBaseColor = 1, kViaWheel = 2;

  /// Describes the grid's columns; the grid outlives this.
  explicit SourceGrid(GUI::CDynamicDataGrid& grid);

  /// Shows these rows in place of all rows.
  void Show(const std::vector<SourceRow>& rows);
  /// Sources and wheels as they are now.
  [[nodiscard]] std::vector<SourceRow> Rows() const;
  void Add();
  void DeleteSelected();

  /// 0 outside the rows.
  [[nodiscard]] unsigned IdOf(int row) const;
  [[nodiscard]] bool IsViaWheel(unsigned id) const;
  /// The wheel of a row that is there; null when it has none.
  [[nodiscard]] WheelEditor* Editor(unsigned id);
  WheelEditor& MakeEditor(unsigned id);
  void RemoveEditor(unsigned id);
  /// The one selected row's id; 0 when none is, or several are.
  [[nodiscard]] unsigned SelectedId() const;

 private:
  GUI::CDynamicDataGrid& grid_;
  std::map<unsigned, SourceRow> rows_;  ///< by row id; what the cells show is read from them
};

}  // namespace illumination_config
