// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/lamp_waveform_pulses_page.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <utility>

#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/gui/tool.h"
#include "pages/lamp_waveform/add_del_pulse.h"
#include "pages/lamp_waveform/rules/pulse_edit.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/pulse_table.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/waveform_picture.h"
#include "ui_lamp_waveform_pulses_page.h"

namespace VeskSystemDefinition {

namespace {

using GUI::CellKind;
using GUI::GridColumn;

enum Column { kSegment, kPulse, kOperation };

QStringList TextsOf(const PulseInfo& pulse) {
  return {QString::fromStdString(pulse.m_strCWSeg),
          QString::fromStdString(lamp_waveform::PulseText(pulse)),
          QString::fromStdString(lamp_waveform::OperationText(pulse))};
}

void ShowRow(GUI::CDynamicDataGrid& grid, int row, const QStringList& texts, const QString& tip) {
  for (int column = kSegment; column <= kOperation; ++column) {
    if (grid.CellText(row, column) != texts[column]) grid.SetCellText(row, column, texts[column]);
  }
  for (const int column : {kSegment, kPulse}) grid.SetCellToolTip(row, column, tip);
}

}  // namespace

CLampWaveFormPulsesPage::CLampWaveFormPulsesPage(std::string toolName, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::LampWaveFormPulsesPage>()),
      toolName_(std::move(toolName)) {
  ui_->setupUi(this);
  ui_->split->setStretchFactor(0, 1);
  ui_->split->setStretchFactor(1, 1);
  SetUpGrid();
  Connect();
  ShowNoSegments();
}

CLampWaveFormPulsesPage::~CLampWaveFormPulsesPage() = default;

void CLampWaveFormPulsesPage::SetUpGrid() {
  ui_->grid->OfferRowOperations({});
  ui_->grid->SetRowHeadingsVisible(false);
  QHeaderView& rows = *ui_->grid->verticalHeader();
  rows.setMinimumSectionSize(rows.defaultSectionSize());
}

void CLampWaveFormPulsesPage::Connect() {
  using lamp_waveform::WaveformView;
  connect(ui_->grid, &GUI::CDynamicDataGrid::pushButtonClicked, this,
          [this](int row) { OpenPulse(static_cast<std::size_t>(row)); });
  connect(ui_->grid, &GUI::CDynamicDataGrid::rowSelectionChanged, this,
          &CLampWaveFormPulsesPage::FollowSelection);
  connect(ui_->view, &WaveformView::rowClicked, this, &CLampWaveFormPulsesPage::SelectRow);
  connect(ui_->view, &WaveformView::rowActivated, this, [this](std::size_t row) {
    SelectRow(row);
    OpenPulse(row);
  });
}

void CLampWaveFormPulsesPage::Refresh() {
  if (!data_) return;
  FollowWheel();
  ShowPulses();
  ShowPicture();
}

void CLampWaveFormPulsesPage::FollowWheel() {
  if (lamp_waveform::FollowWheel(*data_)) MarkModified();
}

void CLampWaveFormPulsesPage::ShowPulses() {
  const auto pulses = lamp_waveform::ShownPulses(*data_);
  if (pulses.empty()) return ShowNoSegments();
  GUI::CDynamicDataGrid& grid = *ui_->grid;
  if (!std::exchange(showsPulses_, true)) {
    const GridColumn columns[]{
        {.heading = lamp_waveform::kPulseHeaders[kSegment]},
        {.heading = lamp_waveform::kPulseHeaders[kPulse]},
        {.heading = lamp_waveform::kPulseHeaders[kOperation], .kind = CellKind::kPushButton}};
    grid.SetColumns(columns);
    grid.horizontalHeader()->show();
  }
  const PCGroup* const group = lamp_waveform::SelectedGroup(*data_);
  const double rate = group ? lamp_waveform::ReferenceRate(*group) : -1.0;
  // Rows that stay keep the selection and the place that the person scrolled to.
  if (grid.RowCount() > static_cast<int>(pulses.size())) grid.ClearRows();
  for (std::size_t i = 0; i < pulses.size(); ++i) {
    const int row = static_cast<int>(i);
    const QStringList texts = TextsOf(pulses[i]);
    if (row == grid.RowCount()) grid.InsertRow(texts, -1, 0, {}, true);
    ShowRow(grid, row, texts,
            QString::fromStdString(lamp_waveform::PulseDescription(pulses[i], rate)));
  }
  const auto fit = lamp_waveform::FitOf(pulses.size());
  grid.verticalHeader()->setSectionResizeMode(fit.expandRows ? QHeaderView::Stretch
                                                             : QHeaderView::Fixed);
  grid.setVerticalScrollBarPolicy(fit.showScrollBar ? Qt::ScrollBarAlwaysOn
                                                    : Qt::ScrollBarAsNeeded);
}

/// One cell that fills the table.
void CLampWaveFormPulsesPage::ShowNoSegments() {
  GUI::CDynamicDataGrid& grid = *ui_->grid;
  showsPulses_ = false;
  const GridColumn only[]{{}};
  grid.SetColumns(only);
  grid.horizontalHeader()->hide();
  grid.InsertRow({QString::fromLatin1(lamp_waveform::kNoSegmentsText)}, -1, 0, {}, true);
  grid.verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void CLampWaveFormPulsesPage::ShowPicture() {
  ui_->view->SetPicture(lamp_waveform::MakePicture(*data_));
  FollowSelection();
}

void CLampWaveFormPulsesPage::SelectRow(std::size_t row) {
  if (showsPulses_) ui_->grid->SelectRows(static_cast<int>(row), static_cast<int>(row));
}

void CLampWaveFormPulsesPage::FollowSelection() {
  const auto blocks = ui_->grid->SelectedRowBlocks();
  std::optional<std::size_t> row;
  if (showsPulses_ && !blocks.empty()) row = static_cast<std::size_t>(blocks.front().first);
  ui_->view->SetSelectedRow(row);
}

void CLampWaveFormPulsesPage::OpenPulse(std::size_t row) {
  if (!data_ || !showsPulses_) return;
  Refresh();
  const PCGroup* const group = lamp_waveform::SelectedGroup(*data_);
  const auto pulses = lamp_waveform::ShownPulses(*data_);
  if (!group || row >= pulses.size()) return;
  if (!(lamp_waveform::RateInForce(*group, data_->ApplyVIDarkPulse) > 0)) {
    ShowMessageBox(lamp_waveform::NoRateMessage(*group));
    return;
  }
  // The dialog may outlive what the data hold now.
  const PCGroup asked = *group;
  if (pulses[row].m_IsPulse) {
    EditPulse(row, asked);
  } else {
    AddPulse(row, asked);
  }
}

void CLampWaveFormPulsesPage::AddPulse(std::size_t row, const PCGroup& group) {
  const auto start = lamp_waveform::StartAdding(group, data_->ApplyVIDarkPulse);
  CAddDelPulse dialog(start, group.VIDarkPulseInfo, false, this);
  if (RunModal(dialog) != QDialog::Accepted) return;
  const lamp_waveform::PulseValues values = dialog.Values();
  if (lamp_waveform::IsNoPulse(values)) {
    ShowMessageBox(lamp_waveform::kAddRefusal);
    return;
  }
  const double rate = lamp_waveform::RateInForce(group, data_->ApplyVIDarkPulse);
  if (const PulseInfo* stored = PulseAt(row)) {
    Store(row, lamp_waveform::MakePulse(true, stored->m_strCWSeg, values, rate));
  }
}

void CLampWaveFormPulsesPage::EditPulse(std::size_t row, const PCGroup& group) {
  const PulseInfo* stored = PulseAt(row);
  if (!stored) return;
  const auto start = lamp_waveform::StartEditing(*stored, group, data_->ApplyVIDarkPulse);
  CAddDelPulse dialog(start, group.VIDarkPulseInfo, true, this);
  const int result = RunModal(dialog);
  if (result != QDialog::Accepted && result != CAddDelPulse::kDeleted) return;
  const lamp_waveform::PulseValues values = dialog.Values();
  bool isPulse = result == QDialog::Accepted;
  if (isPulse && lamp_waveform::IsNoPulse(values)) {
    const int answer = ShowMessageBox(lamp_waveform::kEditQuestion, {}, msgbox::kYesNo);
    if (answer != msgbox::kAnswerYes) return;
    isPulse = false;
  }
  const double rate = lamp_waveform::RateInForce(group, data_->ApplyVIDarkPulse);
  stored = PulseAt(row);
  if (stored) Store(row, lamp_waveform::EditedPulse(*stored, isPulse, values, rate));
}

void CLampWaveFormPulsesPage::Store(std::size_t row, const PulseInfo& pulse) {
  PulseInfo& stored = *PulseAt(row);
  if (stored == pulse) return;
  stored = pulse;
  MarkModified();
  ShowPulses();
  ShowPicture();
}

PulseInfo* CLampWaveFormPulsesPage::PulseAt(std::size_t row) const {
  LampWaveFormData* const waveform = lamp_waveform::SelectedWaveform(*data_);
  return waveform && row < waveform->VecPulses.size() ? &waveform->VecPulses[row] : nullptr;
}

void CLampWaveFormPulsesPage::MarkModified() const {
  if (Framework::Tool* tool = Framework::Tool::GetInstance(toolName_.c_str())) tool->MarkModified();
}

}  // namespace VeskSystemDefinition
