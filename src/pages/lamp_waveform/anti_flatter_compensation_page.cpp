// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/anti_flatter_compensation_page.h"

#include <QHeaderView>

#include "host/gui/message_box.h"
#include "host/gui/number_box.h"
#include "host/gui/tool.h"
#include "pages/lamp_waveform/rules/ballast.h"
#include "pages/lamp_waveform/rules/compensation.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "ui_anti_flatter_compensation_page.h"
#include "widgets/when_left.h"

namespace VeskSystemDefinition {

namespace {

enum Column { kSpokeName, kApplied };

constexpr int kHeadingHeight = 40;
/// Digits and nothing else.
constexpr char kUnsigned = 'u';

}  // namespace

CAntiFlatterCompensationPage::CAntiFlatterCompensationPage(std::string toolName, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::AntiFlatterCompensationPage>()),
      toolName_(std::move(toolName)) {
  ui_->setupUi(this);
  ui_->ratio->SetConversion(kUnsigned);
  ui_->note->hide();
  SetUpGrid();
  Connect();
  Refresh();
}

CAntiFlatterCompensationPage::~CAntiFlatterCompensationPage() {
  // A field that has the focus loses it while there is still a page to hear of it.
  data_ = nullptr;
  hide();
}

void CAntiFlatterCompensationPage::SetUpGrid() {
  const QString heading =
      QString::fromLatin1(lamp_waveform::TextsOf(lamp_waveform::kAntiFlatterMaker).heading);
  const GUI::GridColumn columns[] = {{.heading = QStringLiteral("Spoke Name")},
                                     {.heading = heading, .kind = GUI::CellKind::kCheckBox}};
  ui_->spokes->SetColumns(columns);
  ui_->spokes->SetCornerHeading(QStringLiteral("Index"));
  ui_->spokes->OfferRowOperations({});
  ui_->spokes->setTabKeyNavigation(false);
  ui_->spokes->horizontalHeader()->setFixedHeight(kHeadingHeight);
}

void CAntiFlatterCompensationPage::Connect() {
  connect(ui_->enable, &QCheckBox::clicked, this, &CAntiFlatterCompensationPage::Enable);
  GUI::WhenLeft(*ui_->ratio, [this] { TakeRatio(); });
  connect(ui_->ratio, &QLineEdit::returnPressed, this, [this] { TakeRatio(); });
  GUI::WhenLeft(*ui_->length, [this] { TakeLength(); });
  connect(ui_->length, &QLineEdit::returnPressed, this, [this] { TakeLength(); });
  connect(ui_->spokes, &GUI::CDynamicDataGrid::checkBoxToggled, this,
          [this](int row, int, bool applied) { TakeSpoke(row, applied); });
}

LampWaveform* CAntiFlatterCompensationPage::Attributes() const {
  LampWaveFormData* const waveform = data_ ? lamp_waveform::SelectedWaveform(*data_) : nullptr;
  return waveform ? &waveform->Attributes : nullptr;
}

// Data to controls.

void CAntiFlatterCompensationPage::Refresh() {
  ShowMode();
  ClearFields();
  LampWaveform* const attributes = Attributes();
  const bool enabled = attributes != nullptr && attributes->CompensationEnabled;
  ui_->enable->setEnabled(attributes != nullptr);
  ui_->enable->setChecked(enabled);
  if (enabled) FillSpokes(*attributes);
  SetFieldsEnabled(enabled);
}

/// A maker without compensation leaves the texts of the one before.
void CAntiFlatterCompensationPage::ShowMode() {
  if (!data_ || !lamp_waveform::HasCompensation(data_->BallastMakerCode)) return;
  const lamp_waveform::CompensationTexts texts = lamp_waveform::TextsOf(data_->BallastMakerCode);
  ui_->enable->setText(QString::fromLatin1(texts.enable));
  ui_->spokes->SetHeading(kApplied, QString::fromLatin1(texts.heading));
}

void CAntiFlatterCompensationPage::FillSpokes(LampWaveform& attributes) {
  for (const SpokePulse& spoke : lamp_waveform::ListSpokes(*data_, attributes.SpokePulses)) {
    const char* applied = spoke.Applied ? "true" : "false";
    ui_->spokes->InsertRow({QString::fromStdString(spoke.Spoke), QString::fromLatin1(applied)}, -1,
                           0, {}, /*readOnly=*/true);
  }
  Framework::ShowText(*ui_->length, lamp_waveform::LengthText(attributes.PulseLength));
  Framework::ShowText(*ui_->ratio, lamp_waveform::RatioText(attributes.PulsePlateauRatio));
}

void CAntiFlatterCompensationPage::ClearFields() {
  Framework::ShowText(*ui_->ratio, {});
  Framework::ShowText(*ui_->length, {});
  ui_->spokes->ClearRows();
}

void CAntiFlatterCompensationPage::SetFieldsEnabled(bool enabled) {
  ui_->length->setEnabled(enabled);
  ui_->ratio->setEnabled(enabled);
  ui_->spokes->setEnabled(enabled);
}

// Controls to data.

void CAntiFlatterCompensationPage::Enable(bool enabled) {
  LampWaveform* const attributes = Attributes();
  if (!attributes) return;
  ClearFields();
  if (enabled) FillSpokes(*attributes);
  SetFieldsEnabled(enabled);
  attributes->CompensationEnabled = enabled;
  MarkModified();
}

void CAntiFlatterCompensationPage::TakeEdits() {
  TakeRatio();
  TakeLength();
}

void CAntiFlatterCompensationPage::TakeRatio() {
  LampWaveform* const attributes = Attributes();
  if (!attributes || !Framework::IsEdited(*ui_->ratio)) return;
  const auto entered =
      lamp_waveform::EnterRatio(ui_->ratio->text().toStdString(), attributes->PulsePlateauRatio);
  Framework::ShowText(*ui_->ratio, lamp_waveform::RatioText(attributes->PulsePlateauRatio));
  Finish(entered);
}

void CAntiFlatterCompensationPage::TakeLength() {
  LampWaveform* const attributes = Attributes();
  if (!attributes || !Framework::IsEdited(*ui_->length)) return;
  const auto entered =
      lamp_waveform::EnterLength(ui_->length->text().toStdString(), attributes->PulseLength);
  Framework::ShowText(*ui_->length, lamp_waveform::LengthText(attributes->PulseLength));
  Finish(entered);
}

void CAntiFlatterCompensationPage::TakeSpoke(int row, bool applied) {
  LampWaveform* const attributes = Attributes();
  if (!attributes) return;
  const auto spoke =
      attributes->SpokePulses.find(ui_->spokes->CellText(row, kSpokeName).toStdString());
  // Pasted cells may hold what was there before.
  if (spoke == attributes->SpokePulses.end() || spoke->second == applied) return;
  spoke->second = applied;
  MarkModified();
}

/// The field shows the stored value by now: the message takes the focus, and the field is left
/// anew.
void CAntiFlatterCompensationPage::Finish(const lamp_waveform::Entered& entered) const {
  if (entered.changed) MarkModified();
  if (entered.refusal) {
    ShowMessageBox(*entered.refusal, lamp_waveform::kInvalidInputCaption, msgbox::kIconError);
  }
}

void CAntiFlatterCompensationPage::MarkModified() const {
  if (auto* tool = Framework::Tool::GetInstance(toolName_.c_str())) tool->MarkModified();
}

}  // namespace VeskSystemDefinition
