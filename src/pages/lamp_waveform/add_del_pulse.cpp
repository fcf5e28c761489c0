// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/add_del_pulse.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QWindow>

#include "host/gui/message_box.h"
#include "host/gui/number_box.h"
#include "pages/lamp_waveform/rules/pulse_preview.h"
#include "ui_add_del_pulse.h"

namespace VeskSystemDefinition {

namespace {

using GUI::LineChart;
using lamp_waveform::PulsePreview;
using lamp_waveform::PulseValues;

/// An entry field, the value it shows, and what it takes.
struct Field {
  QLineEdit* Ui::AddDelPulse::*box;
  double PulseValues::*value;
  host::text::FieldRange range;
};

constexpr host::text::FieldRange kPercent{0.0, lamp_waveform::kMaxAmplitudePercent};
constexpr host::text::FieldRange kMicroseconds{0.0, lamp_waveform::kMaxDurationUs};
constexpr Field kFields[] = {
    {&Ui::AddDelPulse::amplitude, &PulseValues::amplitude, kPercent},
    {&Ui::AddDelPulse::leadingEdge, &PulseValues::leadingEdge, kMicroseconds},
    {&Ui::AddDelPulse::trailingEdge, &PulseValues::trailingEdge, kMicroseconds},
    {&Ui::AddDelPulse::width, &PulseValues::width, kMicroseconds}};
constexpr const Field& kAmplitude = kFields[0];

/// A value that nobody edited stays as it is, unless the field would not take it.
std::optional<double> Take(const Ui::AddDelPulse& ui, const Field& field, double value) {
  QLineEdit& box = *(ui.*field.box);
  const bool stays =
      !Framework::IsEdited(box) && value >= field.range.low && value <= field.range.high;
  return stays ? value : Framework::ReadNumber(box, field.range);
}

void SetRanges(LineChart& chart, const PulsePreview& preview) {
  chart.SetHomeRange(LineChart::Axis::kX, LineChart::Range{preview.xMinimum, preview.xMaximum});
  chart.SetHomeRange(LineChart::Axis::kY, LineChart::Range{preview.yMinimum, preview.yMaximum});
}

}  // namespace

CAddDelPulse::CAddDelPulse(const lamp_waveform::PulseDialogStart& start,
                           const VIDarkPulseInfo& limits, bool editing, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::AddDelPulse>()),
      values_(start.values),
      limits_(limits),
      darkPulseMode_(start.darkPulseMode) {
  ui_->setupUi(this);
  SetUpMode(editing);
  SetUpPreview();
  Connect();
  Show();
  ui_->amplitude->setFocus();
  ui_->amplitude->selectAll();
}

CAddDelPulse::~CAddDelPulse() = default;

void CAddDelPulse::SetUpMode(bool editing) {
  if (editing) setWindowTitle(QStringLiteral("Edit/Delete Pulse"));
  ui_->deletePulse->setVisible(editing);
  ui_->deletePulse->setEnabled(editing);
  ui_->amplitudeRange->setVisible(darkPulseMode_);
  ui_->darkPulse->setVisible(darkPulseMode_);
  if (!darkPulseMode_) return;
  const bool dark = lamp_waveform::IsDark(limits_, values_.amplitude);
  ui_->darkPulse->setChecked(dark);
  SetDurationsEnabled(!dark);
  ui_->amplitudeRange->setText(
      QString::fromStdString(lamp_waveform::OpeningRangeText(limits_, values_.amplitude)));
}

void CAddDelPulse::SetUpPreview() {
  ui_->preview->SetAxisTitle(LineChart::Axis::kX, QStringLiteral("microseconds"));
  ui_->preview->SetAxisTitle(LineChart::Axis::kY, QStringLiteral("Gain"));
  SetRanges(*ui_->preview, PulsePreview());
}

void CAddDelPulse::Connect() {
  connect(ui_->darkPulse, &QCheckBox::clicked, this, &CAddDelPulse::ChooseDark);
  connect(ui_->updateWaveform, &QPushButton::clicked, this, &CAddDelPulse::UpdateWaveform);
  connect(ui_->deletePulse, &QPushButton::clicked, this, &CAddDelPulse::DeletePulse);
  connect(ui_->buttons, &QDialogButtonBox::accepted, this, &CAddDelPulse::accept);
  connect(ui_->buttons, &QDialogButtonBox::rejected, this, &CAddDelPulse::reject);
}

// Values to controls.

void CAddDelPulse::Show() {
  for (const Field& field : kFields) {
    Framework::ShowText(*((*ui_).*field.box), lamp_waveform::FieldText(values_.*field.value));
  }
  DrawPreview();
}

void CAddDelPulse::DrawPreview() {
  ui_->note->setText(QString::fromStdString(lamp_waveform::PreviewNote(values_)));
  const auto preview = lamp_waveform::MakePreview(values_);
  if (!preview) return;
  QList<QPointF> points;
  for (const auto& [time, gain] : preview->points) points << QPointF(time, gain);
  ui_->preview->Clear();
  ui_->preview->AddSeries(QString(), points);
  SetRanges(*ui_->preview, *preview);
}

void CAddDelPulse::SetDurationsEnabled(bool enabled) {
  for (QLineEdit* box : {ui_->leadingEdge, ui_->trailingEdge, ui_->width}) box->setEnabled(enabled);
}

// Controls to values.

/// All fields or, when one is refused, none.
bool CAddDelPulse::TakeFields() {
  PulseValues taken = values_;
  for (const Field& field : kFields) {
    const auto value = Take(*ui_, field, values_.*field.value);
    if (!value) return false;
    taken.*field.value = *value;
  }
  values_ = taken;
  return true;
}

bool CAddDelPulse::PassesAmplitude() {
  std::optional<std::string> refusal;
  if (darkPulseMode_) {
    refusal =
        lamp_waveform::CheckAmplitude(limits_, ui_->darkPulse->isChecked(), values_.amplitude);
  }
  if (refusal) ShowMessageBox(*refusal, lamp_waveform::kAmplitudeCaption);
  Show();
  if (!refusal) return true;
  ui_->amplitude->setFocus();
  ui_->amplitude->selectAll();
  return false;
}

void CAddDelPulse::ChooseDark(bool dark) {
  // An amplitude that was typed before is the one to judge; one that cannot be read is replaced.
  const auto typed =
      host::text::ReadNumberField(ui_->amplitude->text().toStdString(), kAmplitude.range);
  const bool isTyped = Framework::IsEdited(*ui_->amplitude);
  if (const double* amplitude = std::get_if<double>(&typed); isTyped && amplitude != nullptr) {
    values_.amplitude = *amplitude;
  }
  lamp_waveform::SetDark(limits_, dark, values_);
  SetDurationsEnabled(!dark);
  ui_->amplitudeRange->setText(
      QString::fromStdString(lamp_waveform::ClickedRangeText(limits_, dark)));
  Show();
}

void CAddDelPulse::UpdateWaveform() {
  if (TakeFields()) (void)PassesAmplitude();
}

void CAddDelPulse::accept() {
  if (TakeFields() && PassesAmplitude()) QDialog::accept();
}

void CAddDelPulse::DeletePulse() {
  const int answer = ShowMessageBox(lamp_waveform::kDeletePulseQuestion, {}, msgbox::kYesNo);
  if (answer == msgbox::kAnswerYes) done(kDeleted);
}

// Every point of the dialog that is no control of its own moves it.

void CAddDelPulse::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) grip_ = event->globalPosition().toPoint() - pos();
}

void CAddDelPulse::mouseMoveEvent(QMouseEvent* event) {
  if (!grip_ || !event->buttons().testFlag(Qt::LeftButton)) return;
  // Where only the window system may move windows it takes over here.
  if (windowHandle() != nullptr && windowHandle()->startSystemMove()) {
    grip_.reset();
  } else {
    move(event->globalPosition().toPoint() - *grip_);
  }
}

void CAddDelPulse::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) grip_.reset();
}

}  // namespace VeskSystemDefinition
