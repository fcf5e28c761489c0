// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/wheel_grid.h"

#include "pages/illumination_config/list_cell.h"
#include "widgets/dynamic_data_grid.h"

namespace illumination_config {

namespace {

enum Columns { kColor, kDegrees };

}  // namespace

WheelGrid::WheelGrid(GUI::CDynamicDataGrid& grid) : grid_(grid) {
  const GUI::GridColumn columns[] = {{QStringLiteral("Segment"), false, GUI::CellKind::kDropDown},
                                     {QStringLiteral("Degrees"), false, GUI::CellKind::kNumber, 2}};
  grid_.SetColumns(columns);
  const WheelRow fresh;
  grid_.SetNewRowValues({ListCell(kColorList, fresh.color), QString::fromStdString(fresh.degrees)});
}

void WheelGrid::Show(const std::vector<WheelRow>& rows) {
  grid_.ClearRows();
  sizes_.clear();
  for (const WheelRow& row : rows) {
    const int place =
        grid_.InsertRow({ListCell(kColorList, row.color), QString::fromStdString(row.degrees)});
    grid_.SetCellText(place, kColor, QString::fromStdString(row.color));
    sizes_[grid_.RowId(place)] = row.size;
  }
}

std::vector<WheelRow> WheelGrid::Rows() const {
  std::vector<WheelRow> rows;
  for (int row = 0; row < grid_.RowCount(); ++row) {
    rows.push_back({.color = grid_.CellText(row, kColor).toStdString(),
                    .degrees = grid_.CellText(row, kDegrees).toStdString(),
                    .size = SizeOf(grid_.RowId(row))});
  }
  return rows;
}

std::optional<double> WheelGrid::SizeOf(unsigned rowId) const {
  for (unsigned id = rowId; id != 0; id = grid_.SourceId(id)) {
    if (const auto found = sizes_.find(id); found != sizes_.end()) return found->second;
  }
  return std::nullopt;
}

}  // namespace illumination_config
