// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/slr_pulse_data_dlg.h"

#include <limits>

#include "host/gui/number_box.h"
#include "ui_slr_pulse_data_dlg.h"

namespace {

constexpr host::text::FieldRange kLimitRange{std::numeric_limits<std::int16_t>::min(),
                                             std::numeric_limits<std::int16_t>::max()};
constexpr Framework::NumberFormat kAmplitude{
    3, {std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()}};

}  // namespace

SlrPulseDataDlg::SlrPulseDataDlg(std::int16_t lower, std::int16_t upper, double amplitude,
                                 bool limitsEditable, QWidget* parent)
    : QDialog(parent), lower_(lower), upper_(upper), amplitude_(amplitude) {
  Ui::SlrPulseDataDlg ui;
  ui.setupUi(this);
  lowerBox_ = ui.lower;
  upperBox_ = ui.upper;
  amplitudeBox_ = ui.amplitude;
  Framework::ShowInteger(*lowerBox_, lower_);
  Framework::ShowInteger(*upperBox_, upper_);
  Framework::ShowNumber(*amplitudeBox_, amplitude_, kAmplitude);
  lowerBox_->setEnabled(limitsEditable);
  upperBox_->setEnabled(limitsEditable);
  QLineEdit* first = limitsEditable ? lowerBox_ : amplitudeBox_;
  first->setFocus();
  first->selectAll();
}

void SlrPulseDataDlg::accept() {
  if (Take()) QDialog::accept();
}

bool SlrPulseDataDlg::Take() {
  const auto lower = Framework::TakeInteger(*lowerBox_, lower_, kLimitRange);
  if (!lower) return false;
  const auto upper = Framework::TakeInteger(*upperBox_, upper_, kLimitRange);
  if (!upper) return false;
  const auto amplitude = Framework::TakeNumber(*amplitudeBox_, amplitude_, kAmplitude);
  if (!amplitude) return false;
  lower_ = static_cast<std::int16_t>(*lower);
  upper_ = static_cast<std::int16_t>(*upper);
  amplitude_ = *amplitude;
  return true;
}
