// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/new_waveform_dlg.h"

#include <QPushButton>
#include <utility>

#include "host/gui/message_box.h"
#include "pages/lamp_waveform/rules/titles.h"
#include "ui_new_waveform_dlg.h"

namespace VeskSystemDefinition {

NewWaveformDlg::NewWaveformDlg(std::vector<std::string> taken, QWidget* parent)
    : QDialog(parent), taken_(std::move(taken)) {
  Ui::NewWaveformDlg ui;
  ui.setupUi(this);
  title_ = ui.title;
  QPushButton* const ok = ui.buttons->button(QDialogButtonBox::Ok);
  ok->setEnabled(false);
  connect(title_, &QLineEdit::textChanged, ok,
          [ok](const QString& text) { ok->setEnabled(!text.isEmpty()); });
}

std::string NewWaveformDlg::Title() const { return title_->text().toStdString(); }

void NewWaveformDlg::accept() {
  const auto refusal = lamp_waveform::CheckNewTitle(Title(), taken_);
  if (!refusal) return QDialog::accept();
  ShowMessageBox(refusal->text, refusal->caption, msgbox::kIconError);
  title_->setFocus(Qt::OtherFocusReason);
}

}  // namespace VeskSystemDefinition
