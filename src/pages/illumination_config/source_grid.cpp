// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/source_grid.h"

#include "pages/illumination_config/list_cell.h"
#include "widgets/dynamic_data_grid.h"

namespace illumination_config {

namespace {

QStringList Cells(const SourceRow& row) {
  return {ListCell(kKindList, row.kind), ListCell(kColorList, row.baseColor),
          row.viaWheel ? QStringLiteral("true") : QStringLiteral("false")};
}

}  // namespace

SourceGrid::SourceGrid(GUI::CDynamicDataGrid& grid) : grid_(grid) {
  using enum GUI::CellKind;
  const GUI::GridColumn columns[] = {{QStringLiteral("Illumination Source"), false, kDropDown},
                                     {QStringLiteral("Base Color"), false, kDropDown},
                                     {QStringLiteral("Illuminates Via Wheel?"), false, kCheckBox}};
  grid_.SetColumns(columns);
}

void SourceGrid::Show(const std::vector<SourceRow>& rows) {
  grid_.ClearRows();
  rows_.clear();
  for (const SourceRow& row : rows) {
    const int place = grid_.InsertRow(Cells(row));
    grid_.SetCellText(place, kBaseColor, QString::fromStdString(row.baseColor));
    rows_[grid_.RowId(place)] = row;
  }
}

std::vector<SourceRow> SourceGrid::Rows() const {
  std::vector<SourceRow> rows;
  for (int place = 0; place < grid_.RowCount(); ++place) {
    SourceRow& row = rows.emplace_back(rows_.at(grid_.RowId(place)));
    row.kind = grid_.CellText(place, kKind).toStdString();
    row.baseColor = grid_.CellText(place, kBaseColor).toStdString();
    row.viaWheel = grid_.CellChecked(place, kViaWheel);
  }
  return rows;
}

void SourceGrid::Add() {
  const SourceRow row;
  const int place = grid_.InsertRow(Cells(row));
  rows_[grid_.RowId(place)] = row;
  grid_.SelectRows(place, place);
}

void SourceGrid::DeleteSelected() {
  for (const auto& [first, last] : grid_.SelectedRowBlocks()) {
    for (int row = first; row <= last; ++row) rows_.erase(grid_.RowId(row));
  }
  grid_.DeleteSelectedRows();
}

unsigned SourceGrid::IdOf(int row) const { return grid_.RowId(row); }

bool SourceGrid::IsViaWheel(unsigned id) const {
  return grid_.CellChecked(grid_.RowOfId(id), kViaWheel);
}

WheelEditor* SourceGrid::Editor(unsigned id) {
  const auto found = rows_.find(id);
  return found != rows_.end() && found->second.editor ? &*found->second.editor : nullptr;
}

WheelEditor& SourceGrid::MakeEditor(unsigned id) { return rows_.at(id).editor.emplace(); }

void SourceGrid::RemoveEditor(unsigned id) { rows_.at(id).editor.reset(); }

unsigned SourceGrid::SelectedId() const {
  const auto blocks = grid_.SelectedRowBlocks();
  const bool isOne = blocks.size() == 1 && blocks.front().first == blocks.front().second;
  return isOne ? grid_.RowId(blocks.front().first) : 0;
}

}  // namespace illumination_config
