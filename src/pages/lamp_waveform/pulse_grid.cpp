// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/pulse_grid.h"

#include <QHeaderView>

#include "pages/lamp_waveform/rules/pulse_table.h"

namespace lamp_waveform {

namespace {

using GUI::CellKind;
using GUI::GridColumn;

enum Column { kSegment, kPulse, kOperation };

QStringList TextsOf(const PulseInfo& pulse) {
  return {QString::fromStdString(pulse.m_strCWSeg), QString::fromStdString(PulseText(pulse)),
          QString::fromStdString(OperationText(pulse))};
}

}  // namespace

PulseGrid::PulseGrid(GUI::CDynamicDataGrid& grid) : grid_(grid) {
  grid_.OfferRowOperations({});
  grid_.SetRowHeadingsVisible(false);
  // Nothing is typed here: Tab leaves, and a row is one thing, as it is in the picture.
  grid_.setTabKeyNavigation(false);
  grid_.setSelectionBehavior(QAbstractItemView::SelectRows);
  // Rows that are fitted to the table's height are never lower than others.
  QHeaderView& rows = *grid_.verticalHeader();
  rows.setMinimumSectionSize(rows.defaultSectionSize());
  ShowMessage();
}

void PulseGrid::Show(std::span<const PulseInfo> pulses, double referenceRateHz) {
  if (pulses.empty()) return ShowMessage();
  if (!showsPulses_) SetUpColumns();
  // Rows that stay keep the selection and the place that the person scrolled to.
  if (grid_.RowCount() > static_cast<int>(pulses.size())) grid_.ClearRows();
  for (std::size_t i = 0; i < pulses.size(); ++i) {
    ShowRow(static_cast<int>(i), pulses[i], referenceRateHz);
  }
  Fit(pulses.size());
}

void PulseGrid::SetUpColumns() {
  showsPulses_ = true;
  const GridColumn columns[]{{.heading = kPulseHeaders[kSegment]},
                             {.heading = kPulseHeaders[kPulse]},
                             {.heading = kPulseHeaders[kOperation], .kind = CellKind::kPushButton}};
  grid_.SetColumns(columns);
  grid_.horizontalHeader()->show();
}

void PulseGrid::ShowRow(int row, const PulseInfo& pulse, double referenceRateHz) {
  const QStringList texts = TextsOf(pulse);
  if (row == grid_.RowCount()) grid_.InsertRow(texts, -1, 0, {}, /*readOnly=*/true);
  for (int column = kSegment; column <= kOperation; ++column) {
    if (grid_.CellText(row, column) != texts[column]) grid_.SetCellText(row, column, texts[column]);
  }
  const QString description = QString::fromStdString(PulseDescription(pulse, referenceRateHz));
  for (const int column : {kSegment, kPulse}) grid_.SetCellToolTip(row, column, description);
}

void PulseGrid::Fit(std::size_t pulses) {
  const TableFit fit = FitOf(pulses);
  grid_.verticalHeader()->setSectionResizeMode(fit.expandRows ? QHeaderView::Stretch
                                                              : QHeaderView::Fixed);
  grid_.setVerticalScrollBarPolicy(fit.showScrollBar ? Qt::ScrollBarAlwaysOn
                                                     : Qt::ScrollBarAsNeeded);
}

/// One cell that fills the table.
void PulseGrid::ShowMessage() {
  showsPulses_ = false;
  const GridColumn only[]{{}};
  grid_.SetColumns(only);
  grid_.horizontalHeader()->hide();
  grid_.InsertRow({QString::fromLatin1(kNoSegmentsText)}, -1, 0, {}, /*readOnly=*/true);
  grid_.verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid_.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void PulseGrid::SelectRow(std::size_t row) {
  if (showsPulses_) grid_.SelectRows(static_cast<int>(row), static_cast<int>(row));
}

std::optional<std::size_t> PulseGrid::SelectedRow() const {
  const GUI::RowBlocks blocks = grid_.SelectedRowBlocks();
  if (!showsPulses_ || blocks.empty()) return std::nullopt;
  return static_cast<std::size_t>(blocks.front().first);
}

}  // namespace lamp_waveform
