// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/simple_optics_model.h"

#include <QApplication>
#include <QPushButton>
#include <QScopedValueRollback>

#include "host/gui/number_box.h"
#include "pages/lamp_optics/rules/model_curve.h"
#include "ui_simple_optics_model.h"
#include "widgets/when_left.h"

using lamp_optics::ModelField;
using lamp_optics::ModelFields;

namespace {

Framework::NumberFormat FormatOf(const ModelField& field) {
  return {field.decimals, {field.low, field.high}};
}

}  // namespace

CSimpleOpticsModel::CSimpleOpticsModel(const OpticsData& optics, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::SimpleOpticsModel>()), data_(optics) {
  ui_->setupUi(this);
  boxes_ = {ui_->swSlope,          ui_->lwSlope,    ui_->swIntersect,    ui_->lwIntersect,
            ui_->peakTransmission, ui_->blueReduce, ui_->peakWavelength, ui_->peaking};
  for (std::size_t i = 0; i < boxes_.size(); ++i) ConnectBox(i);
  chart_ = lamp_optics::OpticsChart(*ui_->chart);
  Show();
  boxes_[0]->setFocus();
  boxes_[0]->selectAll();
}

CSimpleOpticsModel::~CSimpleOpticsModel() = default;

void CSimpleOpticsModel::ConnectBox(std::size_t field) {
  QLineEdit* box = boxes_[field];
  box->setAccessibleName(QString::fromLatin1(ModelFields()[field].name));
  connect(box, &QLineEdit::textEdited, this, [this] { Draw(Typed()); });
  GUI::WhenLeftForAnother(*box, [this, field] { BoxLeft(field); });
}

void CSimpleOpticsModel::Show() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const ModelField& field = ModelFields()[i];
    Framework::ShowNumber(*boxes_[i], data_.Model.*field.member, FormatOf(field));
  }
  Draw(data_.Model);
}

void CSimpleOpticsModel::Draw(const OpticsModel& model) {
  chart_.Draw(lamp_optics::OpticsCurves(data_, model));
}

OpticsModel CSimpleOpticsModel::Typed() const {
  OpticsModel model = data_.Model;
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const ModelField& field = ModelFields()[i];
    if (!Framework::IsEdited(*boxes_[i])) continue;
    const auto read =
        host::text::ReadNumberField(boxes_[i]->text().toStdString(), FormatOf(field).range);
    if (const double* value = std::get_if<double>(&read)) model.*field.member = *value;
  }
  return model;
}

bool CSimpleOpticsModel::Take(std::size_t field) {
  const ModelField& taken = ModelFields()[field];
  double& stored = data_.Model.*taken.member;
  const auto value = Framework::TakeNumber(*boxes_[field], stored, FormatOf(taken));
  if (value) stored = *value;
  return value.has_value();
}

void CSimpleOpticsModel::BoxLeft(std::size_t field) {
  // A refused box takes the focus back from the one that got it, which is not left by the person.
  const bool cancels =
      QApplication::focusWidget() == ui_->buttons->button(QDialogButtonBox::Cancel);
  if (taking_ || cancels) return;
  const QScopedValueRollback<bool> rollback(taking_, true);
  const OpticsModel before = data_.Model;
  if (Take(field) && data_.Model != before) Show();
}

void CSimpleOpticsModel::accept() {
  const QScopedValueRollback<bool> rollback(taking_, true);
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    if (!Take(i)) return;
  }
  QDialog::accept();
}
