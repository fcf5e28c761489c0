// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/pixmeld/pixmeld_page.h"

#include <QLabel>
#include <QLineEdit>

#include "framework/tool_name.h"
#include "host/data/pixmeld_control_data.h"
#include "host/gui/number_box.h"
#include "host/gui/slow_tool_tip.h"
#include "pages/pixmeld/rules/pixmeld_fields.h"
#include "ui_pixmeld_page.h"

namespace {

constexpr int kDialogId = 18006;

Framework::NumberFormat FormatOf(const pixmeld::Field& field) {
  return {2, {field.low, field.high}};
}

}  // namespace

PixmeldPage::PixmeldPage() : ToolPropertyPage(VeskSystemDefinition::kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Pixmeld(TM) Control"));
}

void PixmeldPage::CreateControls(QWidget* window) {
  Ui::PixmeldPage ui;
  ui.setupUi(window);
  boxes_ = {ui.start, ui.latency, ui.switchTime};
  const std::array<QLabel*, 3> units{ui.startUnit, ui.latencyUnit, ui.switchTimeUnit};
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const pixmeld::Field& field = pixmeld::Fields()[i];
    boxes_[i]->setAccessibleName(QString::fromLatin1(field.label));
    Framework::SetSlowToolTip(*boxes_[i], QString::fromLatin1(field.toolTip));
    units[i]->setText(QString::fromStdString(pixmeld::UnitText(field)));
    units[i]->setAccessibleName(QString::fromLatin1(field.label) + QStringLiteral("/Unit"));
  }
}

int PixmeldPage::UpdateData(int save) {
  if (!data_) return 1;
  if (save) return Take() ? 1 : 0;
  Show();
  return 1;
}

void PixmeldPage::Show() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const pixmeld::Field& field = pixmeld::Fields()[i];
    Framework::ShowNumber(*boxes_[i], data_->*field.member, FormatOf(field));
  }
}

bool PixmeldPage::Take() {
  PixmeldControlData taken = *data_;
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const pixmeld::Field& field = pixmeld::Fields()[i];
    const auto value = Framework::TakeNumber(*boxes_[i], data_->*field.member, FormatOf(field));
    if (!value) return false;
    taken.*field.member = *value;
  }
  if (taken == *data_) return true;
  *data_ = taken;
  Modified();
  return true;
}

Findings PixmeldPage::CheckData(const PixmeldControlData& data, const OstProject* /*project*/) {
  return pixmeld::Check(data);
}
