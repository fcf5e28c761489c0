// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/wheel_grid.h"

#include "pages/illumination_config/list_cell.h"
#include "pages/illumination_config/rules/wheel_total.h"
#include "widgets/dynamic_data_grid.h"

namespace illumination_config {

namespace {

enum Columns { kColor, kDegrees };

QString SizeText(double degrees) { return QString::fromStdString(DegreesText(degrees)); }

QStringList Cells(const WheelRow& row) {
  return {ListCell(kColorList, row.color), SizeText(row.size)};
}

}  // namespace

WheelGrid::WheelGrid(GUI::CDynamicDataGrid& grid) : grid_(grid) {
  const GUI::GridColumn columns[] = {
      {.heading = QStringLiteral("Segment"), .kind = GUI::CellKind::kDropDown},
      {.heading = QStringLiteral("Degrees"),
       .kind = GUI::CellKind::kNumber,
       .decimals = 2,
       .asTyped = true}};
  grid_.SetColumns(columns);
  grid_.SetNewRowValues(Cells(WheelRow()));
}

void WheelGrid::Show(const std::vector<WheelRow>& rows) {
  grid_.ClearRows();
  sizes_.clear();
  for (const WheelRow& row : rows) {
    const int place = grid_.InsertRow(Cells(row));
    grid_.SetCellText(place, kColor, QString::fromStdString(row.color));
    sizes_[grid_.RowId(place)] = row.size;
  }
}

std::vector<WheelRow> WheelGrid::Take() {
  std::vector<WheelRow> rows;
  std::map<unsigned, double> sizes;
  for (int row = 0; row < grid_.RowCount(); ++row) {
    const double size = sizes[grid_.RowId(row)] = SizeOf(row);
    rows.push_back({grid_.CellText(row, kColor).toStdString(), size});
    grid_.SetCellText(row, kDegrees, SizeText(size));
  }
  sizes_ = std::move(sizes);
  return rows;
}

double WheelGrid::SizeOf(int row) const {
  const QString text = grid_.CellText(row, kDegrees);
  const unsigned id = grid_.RowId(row);
  // A row not met before may be a copy.
  const unsigned known = sizes_.contains(id) ? id : grid_.SourceId(id);
  const auto size = sizes_.find(known);
  if (size != sizes_.end() && SizeText(size->second) == text) return size->second;
  return ReadDegrees(text.toStdString());
}

}  // namespace illumination_config
