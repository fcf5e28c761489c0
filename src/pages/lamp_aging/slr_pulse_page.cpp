// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/slr_pulse_page.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "framework/tool_name.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/gui/tool.h"
#include "host/project/ost_project.h"
#include "pages/lamp_aging/aging_curve.h"
#include "pages/lamp_aging/bin_list.h"
#include "pages/lamp_aging/rules/lamp_aging_findings.h"
#include "pages/lamp_aging/slr_pulse_data_dlg.h"
#include "ui_slr_pulse_page.h"
#include "widgets/focus_wheel.h"

using lamp_aging::Bin;

namespace {

constexpr int kDialogId = 18557;

/// Tells a fault, if there is one; whether there was none.
bool Passed(const std::optional<std::string>& fault) {
  if (fault) ShowMessageBox(*fault);
  return !fault;
}

}  // namespace

SlrPulsePage::SlrPulsePage() : ToolPropertyPage(VeskSystemDefinition::kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Lamp Aging"));
}

void SlrPulsePage::CreateControls(QWidget* window) {
  Ui::SlrPulsePage ui;
  ui.setupUi(window);
  spinFactorBox_ = ui.spinFactor;
  feedbackButton_ = ui.feedback;
  noFeedbackButton_ = ui.noFeedback;
  addButton_ = ui.addBin;
  deleteButton_ = ui.deleteBin;
  caption_ = ui.caption;
  list_ = ui.bins;
  curve_ = ui.curve;
  GUI::TurnOnlyWithFocus(*spinFactorBox_);
  const auto on = [window](auto* sender, auto signal, auto run) {
    QObject::connect(sender, signal, window, run);
  };
  on(spinFactorBox_, &QComboBox::currentIndexChanged, [this] { ChooseSpinFactor(); });
  on(feedbackButton_, &QAbstractButton::clicked, [this] { ChooseFeedback(); });
  on(noFeedbackButton_, &QAbstractButton::clicked, [this] { ChooseNoFeedback(); });
  on(addButton_, &QAbstractButton::clicked, [this] { AddBin(); });
  on(ui.changeBin, &QAbstractButton::clicked, [this] { ChangeBin(); });
  on(deleteButton_, &QAbstractButton::clicked, [this] { DeleteBin(); });
  on(list_, &lamp_aging::BinList::binSelectionChanged,
     [this] { curve_->HighlightBin(list_->SelectedBin()); });
  on(curve_, &lamp_aging::AgingCurve::binClicked,
     [this](std::size_t number) { list_->SelectBin(number); });
}

void SlrPulsePage::InitDialog() {
  if (const Framework::Tool* tool = GetTool(); tool && tool->GetProject()) {
    limits_ = lamp_aging::ReadLimits(*tool->GetProject());
  }
  ToolPropertyPage::InitDialog();
}

int SlrPulsePage::UpdateData(int save) {
  if (!data_) return 1;
  if (save) {
    StoreTables();
    return 1;
  }
  FillSpinFactors();
  LoadTables();
  ballastType_ = data_->m_ballast_type;
  RefreshList();
  ShowBallastType();
  return 1;
}

void SlrPulsePage::FillSpinFactors() {
  const QSignalBlocker quiet(spinFactorBox_);
  const std::size_t known = spinFactors_.size();
  if (const Framework::Tool* tool = GetTool(); tool && tool->GetProject()) {
    lamp_aging::AppendSpinFactors(*tool->GetProject(), spinFactors_);
  }
  for (std::size_t added = known; added < spinFactors_.size(); ++added) {
    spinFactorBox_->addItem(QString::fromStdString(spinFactors_[added].text));
  }
  if (spinFactorBox_->currentIndex() < 0) spinFactorBox_->setCurrentIndex(0);
}

double SlrPulsePage::SelectedSpinFactor() const {
  return lamp_aging::SpinFactorOf(spinFactorBox_->currentText().toStdString());
}

void SlrPulsePage::LoadTables() { lamp_aging::LoadTables(*data_, SelectedSpinFactor(), tables_); }

void SlrPulsePage::StoreTables() {
  if (lamp_aging::StoreTables(tables_, ballastType_, SelectedSpinFactor(), spinFactors_, *data_)) {
    Modified();
  }
}

void SlrPulsePage::RefreshList() {
  const lamp_aging::BinTable& table = lamp_aging::ShownTable(tables_, ballastType_);
  caption_->setText(QString::fromLatin1(SendsFeedback() ? lamp_aging::kFeedbackCaption
                                                        : lamp_aging::kNoFeedbackCaption));
  if (SendsFeedback()) {
    list_->ShowFeedback(table);
    curve_->ShowFeedback(table, limits_);
  } else {
    list_->ShowNoFeedback(table);
    curve_->ShowNoFeedback(table, limits_);
  }
}

void SlrPulsePage::ShowBallastType() {
  feedbackButton_->setChecked(SendsFeedback());
  noFeedbackButton_->setChecked(!SendsFeedback());
  // They work on the table with feedback, which is not shown without.
  addButton_->setEnabled(SendsFeedback());
  deleteButton_->setEnabled(SendsFeedback());
}

// Shows the tables of the new spin factor, then makes those that it does not have yet.
void SlrPulsePage::ChooseSpinFactor() {
  UpdateData(0);
  UpdateData(1);
}

void SlrPulsePage::ChooseFeedback() {
  if (SendsFeedback()) return;
  ballastType_ = lamp_aging::kSendsFeedback;
  Modified();
  UpdateData(1);
  UpdateData(0);
}

void SlrPulsePage::ChooseNoFeedback() {
  if (ballastType_ == lamp_aging::kNoFeedback) return;
  Modified();
  ballastType_ = lamp_aging::kNoFeedback;
  if (data_) LoadTables();
  UpdateData(1);
  UpdateData(0);
}

void SlrPulsePage::AddBin() {
  if (list_->rowCount() >= lamp_aging::kMaxEntries) {
    ShowMessageBox(lamp_aging::TooManyEntriesText());
    return;
  }
  const auto bin =
      AskForBin(lamp_aging::ProposeBin(tables_.feedback, list_->SelectedBin(), limits_), true);
  if (!bin || !Passed(lamp_aging::AddBin(tables_.feedback, *bin, limits_))) return;
  RefreshList();
  list_->SelectBin(lamp_aging::NumberOf(tables_.feedback, *bin));
  if (SendsFeedback()) UpdateData(1);
}

void SlrPulsePage::ChangeBin() {
  if (!SendsFeedback()) return ChangeOnlyBin();
  const auto number = list_->SelectedBin();
  if (!number) {
    ShowMessageBox("Please select a row to edit.");
    return;
  }
  if (*number < tables_.feedback.size()) ChangeSelectedBin(*number);
}

void SlrPulsePage::ChangeSelectedBin(std::size_t number) {
  const auto bin = AskForBin(*lamp_aging::BinAt(tables_.feedback, number), true);
  if (!bin || !Passed(lamp_aging::ChangeBin(tables_.feedback, number, *bin, limits_))) return;
  RefreshList();
  UpdateData(1);
  UpdateData(0);
  list_->SelectBin(lamp_aging::NumberOf(tables_.feedback, *bin));
}

void SlrPulsePage::ChangeOnlyBin() {
  if (tables_.noFeedback.empty()) return;
  const auto bin = AskForBin(*tables_.noFeedback.begin(), false);
  if (!bin || !Passed(lamp_aging::ChangeOnlyBin(tables_.noFeedback, *bin, limits_))) return;
  RefreshList();
  UpdateData(1);
  UpdateData(0);
}

void SlrPulsePage::DeleteBin() {
  const auto number = list_->SelectedBin();
  if (!number) {
    ShowMessageBox("Please select a row to delete.");
    return;
  }
  if (!lamp_aging::DeleteBin(tables_.feedback, *number)) return;
  RefreshList();
  if (SendsFeedback()) UpdateData(1);
}

std::optional<Bin> SlrPulsePage::AskForBin(const Bin& shown, bool limitsEditable) {
  SlrPulseDataDlg dialog(static_cast<std::int16_t>(shown.m_lowerBallastVal),
                         static_cast<std::int16_t>(shown.m_upperBallastVal),
                         shown.m_avgPulseAmplitude, limitsEditable, Window());
  if (RunModal(dialog) != QDialog::Accepted) return std::nullopt;
  return lamp_aging::MakeBin(dialog.Lower(), dialog.Upper(), dialog.Amplitude());
}

Findings SlrPulsePage::CheckData(const LampAgingPageData& data, const OstProject* project) {
  return project ? lamp_aging::Check(data, *project) : Findings();
}
