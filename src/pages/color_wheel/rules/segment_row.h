// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <span>
#include <string>

#include "host/data/s_filter_spec.h"
#include "host/data/s_seg_geom.h"

namespace color_wheel {

/// What a segment's size may be, degrees, bounds included.
inline constexpr double kMaxSegmentDegrees = 360.0;
/// What is written to the log, as one entry, when a size is refused.
inline constexpr const char* kSizeMessage =
    "Error:  Color wheel segments sizes for this configuration must be\n"
    "         between 0 and 360 degrees.";

/// One column of filter values in the segment grid.
struct FilterColumn {
  const char* header;
  double SFilterSpec::*member;
  int decimals;
  double low;   ///< included
  double high;  ///< included
};
[[nodiscard]] std::span<const FilterColumn, 5> FilterColumns();

/// What to say of a cell of that column whose text was not taken.
[[nodiscard]] std::string RefusedFilterHint(const FilterColumn& column, const SFilterSpec& filter);

/// The texts of a row: color name, degrees, then the filter columns.
using RowTexts = std::array<std::string, 7>;
[[nodiscard]] RowTexts ShownRow(const SSegGeom& segment, const SFilterSpec& filter);

struct TakenRow {
  bool changed = false;
  bool sizeRefused = false;  ///< the log gets kSizeMessage
};

/// Stores what the cells of a row hold; `shown` is what they were last filled with, and a cell that
/// still has that text is not taken. Cells whose text is replaced (a chosen "None", a refused size)
/// are rewritten in `cells`.
[[nodiscard]] TakenRow TakeRow(const RowTexts& shown, RowTexts& cells, SSegGeom& segment,
                               SFilterSpec& filter);

}  // namespace color_wheel
