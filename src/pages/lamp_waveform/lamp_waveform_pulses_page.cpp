// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/lamp_waveform_pulses_page.h"

#include <utility>

#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/gui/tool.h"
#include "pages/lamp_waveform/add_del_pulse.h"
#include "pages/lamp_waveform/pulse_grid.h"
#include "pages/lamp_waveform/rules/pulse_edit.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/waveform_picture.h"
#include "ui_lamp_waveform_pulses_page.h"

namespace VeskSystemDefinition {

CLampWaveFormPulsesPage::CLampWaveFormPulsesPage(std::string toolName, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::LampWaveFormPulsesPage>()),
      toolName_(std::move(toolName)) {
  ui_->setupUi(this);
  ui_->split->setStretchFactor(0, 1);
  ui_->split->setStretchFactor(1, 1);
  grid_ = std::make_unique<lamp_waveform::PulseGrid>(*ui_->grid);
  Connect();
}

CLampWaveFormPulsesPage::~CLampWaveFormPulsesPage() = default;

void CLampWaveFormPulsesPage::Connect() {
  using lamp_waveform::WaveformView;
  connect(ui_->grid, &GUI::CDynamicDataGrid::pushButtonClicked, this,
          [this](int row) { OpenPulse(static_cast<std::size_t>(row)); });
  connect(ui_->grid, &GUI::CDynamicDataGrid::rowSelectionChanged, this,
          &CLampWaveFormPulsesPage::FollowSelection);
  connect(ui_->view, &WaveformView::rowClicked, this,
          [this](std::size_t row) { grid_->SelectRow(row); });
  connect(ui_->view, &WaveformView::rowActivated, this, &CLampWaveFormPulsesPage::OpenPulse);
}

void CLampWaveFormPulsesPage::Refresh() {
  if (!data_) return;
  if (lamp_waveform::FollowWheel(*data_)) MarkModified();
  ShowPulses();
}

void CLampWaveFormPulsesPage::ShowPulses() {
  const PCGroup* const group = lamp_waveform::SelectedGroup(*data_);
  const double rate = group ? lamp_waveform::ReferenceRate(*group) : 0.0;
  grid_->Show(lamp_waveform::ShownPulses(*data_), rate);
  ui_->view->SetPicture(lamp_waveform::MakePicture(*data_));
  FollowSelection();
}

void CLampWaveFormPulsesPage::FollowSelection() { ui_->view->SetSelectedRow(grid_->SelectedRow()); }

void CLampWaveFormPulsesPage::OpenPulse(std::size_t row) {
  if (!data_ || !grid_->ShowsPulses()) return;
  Refresh();
  const PCGroup* const group = lamp_waveform::SelectedGroup(*data_);
  const auto pulses = lamp_waveform::ShownPulses(*data_);
  if (!group || row >= pulses.size()) return;
  grid_->SelectRow(row);
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
}

PulseInfo* CLampWaveFormPulsesPage::PulseAt(std::size_t row) const {
  LampWaveFormData* const waveform = lamp_waveform::SelectedWaveform(*data_);
  return waveform && row < waveform->VecPulses.size() ? &waveform->VecPulses[row] : nullptr;
}

void CLampWaveFormPulsesPage::MarkModified() const {
  if (Framework::Tool* tool = Framework::Tool::GetInstance(toolName_.c_str())) tool->MarkModified();
}

}  // namespace VeskSystemDefinition
