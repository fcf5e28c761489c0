// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/segment_grid.h"

#include <algorithm>

#include "host/calc/color_code.h"
#include "host/data/color_wheel_data.h"
#include "pages/color_wheel/rules/color_list.h"
#include "pages/color_wheel/rules/segment_rows.h"
#include "platform/text/number.h"
#include "widgets/dynamic_data_grid.h"

namespace color_wheel {

namespace {

constexpr int kColorColumn = 0;
constexpr int kFirstFilterColumn = 2;

/// A text that stands in its cell and is not stored.
QColor RefusedBackground() { return {255, 214, 204}; }

GUI::GridColumn NumberColumn(const char* heading, int decimals) {
  GUI::GridColumn column;
  column.heading = QString::fromLatin1(heading);
  column.kind = GUI::CellKind::kNumber;
  column.decimals = static_cast<std::int16_t>(decimals);
  column.asTyped = true;
  return column;
}

bool IsSameNumber(const std::string& a, const std::string& b) {
  const auto left = platform::ParseNumber(a), right = platform::ParseNumber(b);
  return left && right && *left == *right;
}

}  // namespace

SegmentGrid::SegmentGrid(GUI::CDynamicDataGrid& grid) : grid_(grid) {
  std::vector<GUI::GridColumn> columns{{QStringLiteral("Segment"), false, GUI::CellKind::kDropDown},
                                       NumberColumn("Degrees", 2)};
  for (const FilterColumn& filter : FilterColumns()) {
    columns.push_back(NumberColumn(filter.header, filter.decimals));
  }
  grid_.SetColumns(columns.data(), static_cast<int>(columns.size()));
  grid_.SetColumnSample(kColorColumn, QStringLiteral("NDMagenta"));
  grid_.SetColumnSample(1, QStringLiteral("360.00"));
}

void SegmentGrid::Show(ColorWheelData& wheel) {
  const auto selected = grid_.SelectedRowBlocks();
  const int row = grid_.currentIndex().row(), column = grid_.currentIndex().column();
  const QSignalBlocker blocker(grid_);
  grid_.ClearRows();
  shown_.clear();
  for (std::size_t i = 0; i < wheel.Segments.size(); ++i) InsertRow(wheel, i);
  if (!selected.empty()) grid_.SelectBlocks(selected);
  const QModelIndex current = grid_.model()->index(row, column);
  if (current.isValid()) {
    grid_.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  }
}

void SegmentGrid::ShowFrom(ColorWheelData& wheel, std::size_t first) {
  for (std::size_t i = first; i < wheel.Segments.size(); ++i) InsertRow(wheel, i);
  grid_.SelectRows(static_cast<int>(first), grid_.RowCount() - 1);
}

void SegmentGrid::InsertRow(ColorWheelData& wheel, std::size_t segment) {
  const RowTexts texts = ShownRow(wheel.Segments[segment], FilterOf(wheel, segment));
  QStringList values;
  for (const std::string& text : texts) values << QString::fromStdString(text);
  values[kColorColumn] = QString::fromStdString(ColorCell(colorList_, color_code::kNone)) +
                         QString::fromUtf8(kNoColorChoice.data());
  const int row = grid_.InsertRow(values);
  grid_.SetCellText(row, kColorColumn, QString::fromStdString(texts[kColorColumn]));
  wheel.Segments[segment].RowTag = static_cast<int>(grid_.RowId(row));
  shown_[grid_.RowId(row)] = texts;
}

RowTexts SegmentGrid::Cells(int row) const {
  RowTexts texts;
  for (std::size_t column = 0; column < texts.size(); ++column) {
    texts[column] = grid_.CellText(row, static_cast<int>(column)).toStdString();
  }
  return texts;
}

SegmentGrid::Taken SegmentGrid::Take(ColorWheelData& wheel) {
  Taken taken;
  const std::size_t rows =
      std::min(wheel.Segments.size(), static_cast<std::size_t>(grid_.RowCount()));
  for (std::size_t i = 0; i < rows; ++i) taken.changed |= TakeRowOf(wheel, i, taken.refusedSizes);
  return taken;
}

bool SegmentGrid::TakeRowOf(ColorWheelData& wheel, std::size_t segment, int& refusedSizes) {
  const int row = static_cast<int>(segment);
  const RowTexts before = Cells(row);
  RowTexts cells = before;
  RowTexts& shown = shown_[grid_.RowId(row)];
  SSegGeom& geometry = wheel.Segments[segment];
  SFilterSpec filter = FilterOf(wheel, segment);
  const TakenRow takenRow = TakeRow(shown, cells, geometry, filter);
  refusedSizes += takenRow.sizeRefused ? 1 : 0;
  if (takenRow.changed) {
    MatchFilters(wheel);
    wheel.FilterSpecs[segment] = filter;
  }
  // What was taken is shown as it is stored; a refused filter value stays as it was typed.
  const RowTexts now = ShownRow(geometry, filter);
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const bool isTaken = now[column] != shown[column] || IsSameNumber(cells[column], now[column]);
    if (cells[column] == before[column] && isTaken) cells[column] = now[column];
  }
  Rewrite(row, before, cells);
  MarkRefused(row, cells, now, filter);
  shown = now;
  return takenRow.changed;
}

void SegmentGrid::Rewrite(int row, const RowTexts& before, const RowTexts& now) {
  for (std::size_t column = 0; column < now.size(); ++column) {
    if (now[column] == before[column]) continue;
    const int place = static_cast<int>(column);
    if (now[column].empty()) {
      grid_.ClearCell(row, place);
    } else {
      grid_.SetCellText(row, place, QString::fromStdString(now[column]));
    }
  }
}

void SegmentGrid::MarkRefused(int row, const RowTexts& cells, const RowTexts& stored,
                              const SFilterSpec& filter) {
  int column = kFirstFilterColumn;
  for (const FilterColumn& each : FilterColumns()) {
    const auto cell = static_cast<std::size_t>(column);
    const bool refused = cells[cell] != stored[cell];
    grid_.SetCellBackground(row, column, refused ? RefusedBackground() : QColor());
    grid_.SetCellToolTip(
        row, column, refused ? QString::fromStdString(RefusedFilterHint(each, filter)) : QString());
    ++column;
  }
}

void SegmentGrid::FollowRows(ColorWheelData& wheel) {
  std::vector<int> tags;
  for (int row = 0; row < grid_.RowCount(); ++row) {
    tags.push_back(static_cast<int>(grid_.RowId(row)));
  }
  OrderByRows(wheel, tags);
  for (std::size_t i = 0; i < wheel.Segments.size(); ++i) {
    const std::string_view name = color_code::Name(wheel.Segments[i].Color);
    grid_.SetCellText(static_cast<int>(i), kColorColumn, QString::fromStdString(std::string(name)));
  }
}

std::set<std::size_t> SegmentGrid::Selected() const {
  std::set<std::size_t> selected;
  for (const auto& [first, last] : grid_.SelectedRowBlocks()) {
    for (int row = first; row <= last; ++row) selected.insert(static_cast<std::size_t>(row));
  }
  return selected;
}

}  // namespace color_wheel
