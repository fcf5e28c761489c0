// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <map>
#include <set>
#include <string>

#include "pages/color_wheel/rules/segment_row.h"

class ColorWheelData;

namespace GUI {
class CDynamicDataGrid;
}

namespace color_wheel {

/// The wheel's segments as rows of a grid. A segment's RowTag is the id of its row.
class SegmentGrid {
 public:
  /// Describes the grid's columns; the grid outlives this.
  explicit SegmentGrid(GUI::CDynamicDataGrid& grid);

  /// The choices of the color column, joined by "|". Rows shown from then on have them.
  void SetColorList(const std::string& list) { colorList_ = list; }

  /// A row a segment, in place of all rows. Rows that were selected stay selected by their place.
  void Show(ColorWheelData& wheel);
  /// Adds rows for the segments that have none yet, from that one on, and selects them.
  void ShowFrom(ColorWheelData& wheel, std::size_t first);

  struct Taken {
    bool changed = false;
    int refusedSizes = 0;
  };
  /// Takes what was edited. Refused sizes and a chosen "None" are rewritten in their cells; a
  /// refused filter value keeps its text and is marked until it is edited or shown anew.
  Taken Take(ColorWheelData& wheel);
  /// After rows were moved: segments and filters come into the order of their rows.
  void FollowRows(ColorWheelData& wheel);
  /// The numbers of the selected segments.
  [[nodiscard]] std::set<std::size_t> Selected() const;

 private:
  void InsertRow(ColorWheelData& wheel, std::size_t segment);
  [[nodiscard]] RowTexts Cells(int row) const;
  void Rewrite(int row, const RowTexts& before, const RowTexts& now);
  void MarkRefused(int row, const RowTexts& cells, const RowTexts& stored,
                   const SFilterSpec& filter);
  bool TakeRowOf(ColorWheelData& wheel, std::size_t segment, int& refusedSizes);

  GUI::CDynamicDataGrid& grid_;
  std::string colorList_;
  std::map<unsigned, RowTexts> shown_;  ///< what the cells were last filled with, by row id
};

}  // namespace color_wheel
