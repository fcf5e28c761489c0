// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/support/test_page.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <stdexcept>

#include "host/gui/message_box.h"
#include "host/project/log.h"

namespace test {

void TestPage::CreateControls(QWidget* window) {
  form_ = new TestForm;
  (new QVBoxLayout(window))->addWidget(form_);
}

void TestPage::InitDialog() { Show(); }

void TestPage::Show() {
  for (auto* field : form_->findChildren<QLineEdit*>())
    if (field->accessibleName() == "Frame Rate") field->setText(QString::fromStdString(rate_));
}

int TestPage::OnApply() {
  for (const auto* field : form_->findChildren<QLineEdit*>()) {
    if (field->accessibleName() != "Frame Rate" || field->text().toStdString() == rate_) continue;
    const std::string typed = field->text().toStdString();
    if (typed == "0") {
      ShowMessageBox("Not 0.", {}, msgbox::kIconError);
      return 0;
    }
    if (typed == "stop" && ShowMessageBox("Really?", "Stop", msgbox::kYesNo) != msgbox::kAnswerYes)
      return 0;
    rate_ = typed;
    tostream::GetLog(tostream::kLogNormal, tostream::kPrivUser) << "rate " << rate_ << EndEntry;
    Modified();
  }
  return 1;
}

platform::xml::Document TestPage::ExportData() const {
  platform::xml::Document document;
  document.CreateRoot("ModuleOutputs").AppendElement("rate").SetText(rate_);
  return document;
}

void TestPage::ImportData(const platform::xml::Document& document) {
  const platform::xml::Element rate = document.Root().Child("rate");
  if (!rate) throw std::runtime_error("no element rate");
  rate_ = rate.Text();
  if (form_) Show();
}

}  // namespace test
