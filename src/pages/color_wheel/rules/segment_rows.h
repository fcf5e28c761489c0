// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <utility>

#include "host/data/color_wheel_data.h"

/// The row operations of the segment grid on the wheel's data. Filter i stays segment i's filter in
/// all of them. Rows are counted from 0, without the header.
namespace color_wheel {

/// Adding a row is offered while there are fewer.
inline constexpr int kMaxAddedRows = 20;

/// A run of rows, first and last, both within the wheel.
using RowBlock = std::pair<int, int>;

/// Gives a wheel that was stored with fewer or more filters than segments one filter a segment:
/// further ones are new filters of the segment's color. The row operations begin with it.
void MatchFilters(ColorWheelData& wheel);

/// The segment's filter; a new filter of its color where the wheel was stored without.
[[nodiscard]] SFilterSpec FilterOf(const ColorWheelData& wheel, std::size_t segment);

/// Appends a new segment shown in the row of that identity.
void AddSegment(ColorWheelData& wheel, int rowTag);
/// Appends copies of the blocks' segments, the last block's first. Their row tags are to be set.
void CopySegments(ColorWheelData& wheel, std::span<const RowBlock> blocks);
/// Removes the segments of the blocks, which stand in row order and do not overlap.
void DeleteSegments(ColorWheelData& wheel, std::span<const RowBlock> blocks);
/// Puts the segments in the order of the grid's rows, which are given by their identities. An
/// identity that no segment carries is passed over.
void OrderByRows(ColorWheelData& wheel, std::span<const int> rowTags);

}  // namespace color_wheel
