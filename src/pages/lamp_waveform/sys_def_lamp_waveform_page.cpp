// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/sys_def_lamp_waveform_page.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <span>

#include "framework/tool_name.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/gui/number_box.h"
#include "host/gui/slow_tool_tip.h"
#include "pages/lamp_waveform/anti_flatter_compensation_page.h"
#include "pages/lamp_waveform/lamp_waveform_pulses_page.h"
#include "pages/lamp_waveform/new_waveform_dlg.h"
#include "pages/lamp_waveform/rules/ballast.h"
#include "pages/lamp_waveform/rules/compensation.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/titles.h"
#include "pages/lamp_waveform/rules/waveform_check.h"
#include "ui_sys_def_lamp_waveform_page.h"
#include "widgets/focus_wheel.h"
#include "widgets/when_left.h"

namespace VeskSystemDefinition {

namespace {

constexpr int kDialogId = 18441;
constexpr int kCompensationTab = 1;
constexpr host::text::FieldRange kIndexRange{0, 255};

/// The place of the list's selection; nothing without one.
std::optional<std::size_t> Chosen(const QComboBox& list) {
  if (list.currentIndex() < 0) return std::nullopt;
  return static_cast<std::size_t>(list.currentIndex());
}

std::string TextOf(const QComboBox& list) { return list.currentText().toStdString(); }

void Choose(QComboBox& list, std::optional<std::size_t> place) {
  const QSignalBlocker quiet(list);
  list.setCurrentIndex(place ? static_cast<int>(*place) : -1);
}

bool Shows(const QComboBox& list, std::span<const std::string> items) {
  if (list.count() != static_cast<int>(items.size())) return false;
  for (int i = 0; i < list.count(); ++i) {
    if (list.itemText(i).toStdString() != items[static_cast<std::size_t>(i)]) return false;
  }
  return true;
}

/// Fills the list, which loses its selection where the items are not those that it shows.
void Fill(QComboBox& list, std::span<const std::string> items) {
  if (Shows(list, items)) return;
  const QSignalBlocker quiet(list);
  list.clear();
  for (const std::string& item : items) list.addItem(QString::fromStdString(item));
}

void ShowRefusal(const lamp_waveform::TitleRefusal& refusal) {
  ShowMessageBox(refusal.text, refusal.caption, msgbox::kIconError);
}

}  // namespace

SysDefLampWaveformPage::SysDefLampWaveformPage() : ToolPropertyPage(kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Lamp Waveform Definition"));
}

SysDefLampWaveformPage::~SysDefLampWaveformPage() = default;

void SysDefLampWaveformPage::SetData(GUIInputsData* data) {
  data_ = data;
  if (sheet_) sheet_->SetInputData(data);
}

void SysDefLampWaveformPage::CreateControls(QWidget* window) {
  ui_ = std::make_unique<Ui::SysDefLampWaveformPage>();
  ui_->setupUi(window);
  for (const auto& maker : lamp_waveform::BallastMakers()) {
    ui_->maker->addItem(QString::fromLatin1(maker.text));
  }
  MakeSheet();
  SetUpButtons();
  ConnectControls();
  EnableControls();
}

void SysDefLampWaveformPage::MakeSheet() {
  sheet_ = ui_->sheet;
  // What stands above it keeps its place while it is hidden.
  QSizePolicy size = sheet_->sizePolicy();
  size.setRetainSizeWhenHidden(true);
  sheet_->setSizePolicy(size);
  sheet_->AddPage(new CLampWaveFormPulsesPage(ToolName()), QStringLiteral("Pulses"));
  compensation_ = new CAntiFlatterCompensationPage(ToolName());
  sheet_->AddPage(compensation_, QString::fromLatin1(
                                     lamp_waveform::TextsOf(lamp_waveform::kAntiFlatterMaker).tab));
  sheet_->SetInputData(data_);
}

void SysDefLampWaveformPage::SetUpButtons() {
  ui_->newWaveform->SetImage(GUI::Image::kNew, QStringLiteral("New"));
  ui_->deleteWaveform->SetImage(GUI::Image::kDelete, QStringLiteral("Delete"));
  ui_->importAttributes->SetImage(GUI::Image::kImport, QStringLiteral("Import Attributes ..."));
  ui_->exportAttributes->SetImage(GUI::Image::kExport, QStringLiteral("Export Attributes ..."));
  for (auto* button : ui_->controls->findChildren<GUI::ImageButton*>()) {
    Framework::SetSlowToolTip(*button, button->toolTip());
  }
}

void SysDefLampWaveformPage::ConnectControls() {
  QWidget* const window = ui_->controls;
  for (QComboBox* list : {ui_->groupType, ui_->spinFactor, ui_->waveform}) {
    GUI::TurnOnlyWithFocus(*list);
    QObject::connect(list, &QComboBox::currentIndexChanged, window, [this] { Refresh(); });
  }
  GUI::TurnOnlyWithFocus(*ui_->maker);
  QObject::connect(ui_->maker, &QComboBox::currentIndexChanged, window,
                   [this] { StoreAndRefresh(); });
  QObject::connect(ui_->uart, &QCheckBox::clicked, window, [this] { StoreAndRefresh(); });
  GUI::WhenLeftForAnother(*ui_->waveformIndex, [this] { StoreAndRefresh(); });
  QObject::connect(ui_->waveformIndex, &QLineEdit::returnPressed, window,
                   [this] { StoreAndRefresh(); });
  const auto onClick = [window](const GUI::ImageButton* button, auto run) {
    QObject::connect(button, &QAbstractButton::clicked, window, run);
  };
  onClick(ui_->newWaveform, [this] { NewWaveform(); });
  onClick(ui_->deleteWaveform, [this] { DeleteWaveform(); });
  onClick(ui_->importAttributes, [this] { Refresh(); });
  onClick(ui_->exportAttributes, [this] { Refresh(); });
}

void SysDefLampWaveformPage::TakeForeign(const GUIInputsData& foreign) {
  if (!data_ || (storedWheel_ && *storedWheel_ == foreign.ColorWheel)) return;
  storedWheel_ = std::make_unique<ColorWheelData>(foreign.ColorWheel);
  if (foreign.ColorWheel == data_->ColorWheel) return;
  data_->ColorWheel = foreign.ColorWheel;
  Refresh();
}

int SysDefLampWaveformPage::UpdateData(int save) {
  if (!data_) return 1;
  if (save) {
    compensation_->TakeEdits();
    return Store() ? 1 : 0;
  }
  Refresh();
  return 1;
}

const PCGroup* SysDefLampWaveformPage::ChosenGroup() const {
  const auto place = Chosen(*ui_->groupType);
  return place && *place < data_->PCGroups.size() ? &data_->PCGroups[*place] : nullptr;
}

std::optional<SysDefLampWaveformPage::Pair> SysDefLampWaveformPage::ChosenPair() const {
  if (!Chosen(*ui_->groupType) || !Chosen(*ui_->spinFactor)) return std::nullopt;
  return Pair{TextOf(*ui_->groupType), lamp_waveform::SpinFactorOf(TextOf(*ui_->spinFactor))};
}

bool SysDefLampWaveformPage::HasWaveform() const {
  return data_ && ChosenPair() && Chosen(*ui_->waveform);
}

// Data to controls.

void SysDefLampWaveformPage::Refresh() {
  if (!data_) return;
  ShowGroupTypes();
  ShowSpinFactors();
  ShowWaveforms();
  StoreSelection();
  ShowAttributes();
  EnableControls();
}

void SysDefLampWaveformPage::ShowGroupTypes() {
  std::vector<std::string> titles;
  for (const PCGroup& group : data_->PCGroups) titles.push_back(group.Title);
  const std::string previous = TextOf(*ui_->groupType);
  Fill(*ui_->groupType, titles);
  Choose(*ui_->groupType, lamp_waveform::ReselectByBeginning(titles, previous));
}

void SysDefLampWaveformPage::ShowSpinFactors() {
  const PCGroup* const group = ChosenGroup();
  const std::vector<std::string> texts =
      group ? lamp_waveform::SpinFactorTexts(*group) : std::vector<std::string>();
  const std::string previous = TextOf(*ui_->spinFactor);
  Fill(*ui_->spinFactor, texts);
  Choose(*ui_->spinFactor, lamp_waveform::ReselectByBeginning(texts, previous));
}

void SysDefLampWaveformPage::ShowWaveforms() {
  std::vector<std::string> titles;
  if (const auto pair = ChosenPair()) {
    titles = lamp_waveform::Titles(lamp_waveform::WaveformsOf(*data_, pair->group, pair->spin));
  }
  const std::string previous = TextOf(*ui_->waveform);
  Fill(*ui_->waveform, titles);
  Choose(*ui_->waveform, lamp_waveform::ReselectByName(titles, previous));
  ui_->waveform->setEnabled(!titles.empty());
}

void SysDefLampWaveformPage::StoreSelection() {
  if (Chosen(*ui_->groupType)) data_->CurrentGroupType = TextOf(*ui_->groupType);
  if (Chosen(*ui_->spinFactor)) {
    data_->CurrentSpinFactor = lamp_waveform::SpinFactorOf(TextOf(*ui_->spinFactor));
  }
  if (Chosen(*ui_->waveform)) data_->CurrentWaveformName = TextOf(*ui_->waveform);
}

void SysDefLampWaveformPage::ShowAttributes() {
  const LampWaveFormData* const waveform =
      HasWaveform() ? lamp_waveform::SelectedWaveform(*data_) : nullptr;
  if (!waveform) return;
  const LampWaveform& attributes = waveform->Attributes;
  ShowMaker(attributes.GetBallastMakerCode());
  Framework::ShowInteger(*ui_->waveformIndex, attributes.GetBallastWaveformIndex());
  ui_->uart->setChecked(attributes.GetUARTFlag() != 0);
  sheet_->RefreshPages();
}

void SysDefLampWaveformPage::ShowMaker(int code) {
  const auto maker = static_cast<std::uint8_t>(code);
  Choose(*ui_->maker, lamp_waveform::MakerPosition(maker));
  const bool compensates = lamp_waveform::HasCompensation(maker);
  if (compensates) data_->BallastMakerCode = maker;
  sheet_->SetTabDisabled(kCompensationTab, !compensates);
  sheet_->setTabText(kCompensationTab,
                     QString::fromLatin1(lamp_waveform::TextsOf(data_->BallastMakerCode).tab));
}

void SysDefLampWaveformPage::EnableControls() {
  const bool chosen = HasWaveform();
  ui_->uart->hide();
  ui_->newWaveform->setEnabled(data_ && ChosenPair());
  const std::initializer_list<QWidget*> dependent{ui_->deleteWaveform, ui_->importAttributes,
                                                  ui_->exportAttributes, ui_->maker,
                                                  ui_->waveformIndex};
  for (QWidget* control : dependent) control->setEnabled(chosen);
  sheet_->setVisible(chosen);
  if (chosen) return;
  // What no waveform has is not shown.
  Choose(*ui_->maker, std::nullopt);
  Framework::ShowText(*ui_->waveformIndex, {});
}

// Controls to data.

bool SysDefLampWaveformPage::Store() {
  if (!HasWaveform()) return true;
  LampWaveFormData* const waveform = lamp_waveform::SelectedWaveform(*data_);
  if (!waveform) return true;
  LampWaveform& attributes = waveform->Attributes;
  const auto index = Framework::TakeInteger(*ui_->waveformIndex,
                                            attributes.GetBallastWaveformIndex(), kIndexRange);
  if (!index) return false;
  if (lamp_waveform::StoreBallast(attributes, ui_->uart->isChecked(), Chosen(*ui_->maker),
                                  static_cast<std::uint8_t>(*index))) {
    Modified();
  }
  return true;
}

void SysDefLampWaveformPage::StoreAndRefresh() {
  if (data_ && Store()) Refresh();
}

void SysDefLampWaveformPage::NewWaveform() {
  const auto pair = ChosenPair();
  if (!data_ || !pair) return;
  const auto& waveforms = lamp_waveform::WaveformsOf(*data_, pair->group, pair->spin);
  NewWaveformDlg dialog(lamp_waveform::Titles(waveforms), Window());
  if (RunModal(dialog) != QDialog::Accepted) return;
  const std::string title = dialog.Title();
  if (const auto refusal = lamp_waveform::CheckTitleInDatabase(title, data_->LampWaveformDB)) {
    return ShowRefusal(*refusal);
  }
  lamp_waveform::AddWaveform(*data_, pair->group, pair->spin, title);
  {
    const QSignalBlocker quiet(ui_->waveform);
    ui_->waveform->addItem(QString::fromStdString(title));
    ui_->waveform->setCurrentIndex(ui_->waveform->count() - 1);
  }
  Refresh();
  Modified();
}

void SysDefLampWaveformPage::DeleteWaveform() {
  if (!HasWaveform()) return;
  const int answer = ShowMessageBox(
      lamp_waveform::DeleteQuestion(TextOf(*ui_->waveform)), lamp_waveform::kDeleteCaption,
      msgbox::kYesNo | msgbox::kIconQuestion | msgbox::kDefaultButton2);
  const auto pair = ChosenPair();
  const auto place = Chosen(*ui_->waveform);
  if (answer != msgbox::kAnswerYes || !pair || !place) return;
  auto& waveforms = lamp_waveform::WaveformsOf(*data_, pair->group, pair->spin);
  if (*place >= waveforms.size()) return;
  waveforms.erase(waveforms.begin() + static_cast<std::ptrdiff_t>(*place));
  {
    const QSignalBlocker quiet(ui_->waveform);
    ui_->waveform->removeItem(static_cast<int>(*place));
    ui_->waveform->setCurrentIndex(ui_->waveform->count() > 0 ? 0 : -1);
  }
  Refresh();
  Modified();
}

Findings SysDefLampWaveformPage::CheckData(const GUIInputsData& data,
                                           const OstProject* /*project*/) {
  return lamp_waveform::CheckWaveforms(data);
}

}  // namespace VeskSystemDefinition
