// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/color_wheel_adv_dlg.h"

#include <QScopedValueRollback>

#include "host/calc/color_code.h"
#include "host/gui/message_box.h"
#include "ui_color_wheel_adv_dlg.h"
#include "widgets/dynamic_data_grid.h"

namespace VeskSystemDefinition {

namespace {

using color_wheel::AdvancedColumn;
using color_wheel::AdvancedGrid;
using GUI::CellKind;
using GUI::GridColumn;

constexpr AdvancedColumn kColumns[] = {AdvancedColumn::kSegment, AdvancedColumn::kSpoke};
constexpr int kPwmDecimals = 3;
constexpr int kGainDecimals = 2;

/// The grid's column of a value; before it stands the color.
int GridColumnOf(AdvancedColumn column) { return 1 + static_cast<int>(column); }

/// What says without a word that values are not for editing.
QColor ReadOnlyBackground() { return {212, 212, 212}; }

GridColumn ValueColumn(const char* heading, int decimals, double high) {
  return {.heading = QString::fromLatin1(heading),
          .kind = CellKind::kNumber,
          .decimals = static_cast<std::int16_t>(decimals),
          .minimum = 0.0,
          .maximum = high,
          .minimumSet = true,
          .maximumSet = true,
          .asTyped = true};
}

}  // namespace

CColorWheelAdvDlg::CColorWheelAdvDlg(std::vector<SSegGeom> segments, bool useModeled,
                                     QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::ColorWheelAdvDlg>()),
      segments_(std::move(segments)),
      useModeled_(useModeled) {
  ui_->setupUi(this);
  pwm_ = {AdvancedGrid::kPwm, ui_->pwm, {}};
  gains_ = {AdvancedGrid::kGains, ui_->gains, {}};
  SetUp(pwm_, kPwmDecimals);
  SetUp(gains_, kGainDecimals);
  connect(ui_->useModeled, &QRadioButton::clicked, this, [this] { Choose(true); });
  connect(ui_->useMeasured, &QRadioButton::clicked, this, [this] { Choose(false); });
  Show();
}

CColorWheelAdvDlg::~CColorWheelAdvDlg() = default;

void CColorWheelAdvDlg::SetUp(ValueGrid& values, int decimals) {
  const double high = color_wheel::ValueOf(values.kind, AdvancedColumn::kSegment, useModeled_).high;
  const GridColumn columns[] = {{.heading = QStringLiteral("Color")},
                                ValueColumn("Segment", decimals, high),
                                ValueColumn("Spoke", decimals, high)};
  values.grid->SetColumns(columns);
  values.grid->OfferRowOperations({});
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    values.grid->InsertRow({QString(), QString(), QString()});
    values.grid->SetCellReadOnly(static_cast<int>(i), 0, true);
  }
  values.shown.resize(segments_.size());
  connect(values.grid, &GUI::CDynamicDataGrid::cellEditEnded, this, &CColorWheelAdvDlg::Take);
}

void CColorWheelAdvDlg::Show() {
  ui_->useModeled->setChecked(useModeled_);
  ui_->useMeasured->setChecked(!useModeled_);
  ShowGrid(pwm_);
  ShowGrid(gains_);
  pwm_.grid->SetReadOnly(useModeled_);
}

void CColorWheelAdvDlg::ShowGrid(ValueGrid& values) {
  const std::size_t filled = color_wheel::AdvancedRowCount(segments_);
  const bool isGrey = values.kind == AdvancedGrid::kPwm && useModeled_;
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    ShowRow(values, i, i < filled);
    for (int column = 0; column < values.grid->ColumnCount(); ++column) {
      values.grid->SetCellBackground(static_cast<int>(i), column,
                                     isGrey ? ReadOnlyBackground() : QColor());
    }
  }
}

void CColorWheelAdvDlg::ShowRow(ValueGrid& values, std::size_t segment, bool isFilled) {
  const SSegGeom& geometry = segments_[segment];
  const bool hasValues = isFilled && color_code::IsCounted(geometry.Color);
  const int row = static_cast<int>(segment);
  const std::string_view name = hasValues ? color_code::Name(geometry.Color) : std::string_view();
  values.grid->SetCellText(row, 0, QString::fromStdString(std::string(name)));
  for (const AdvancedColumn column : kColumns) {
    const int place = GridColumnOf(column);
    values.grid->SetCellReadOnly(row, place, !hasValues);
    if (hasValues) {
      const auto value = color_wheel::ValueOf(values.kind, column, useModeled_);
      values.grid->SetCellText(row, place,
                               QString::fromStdString(color_wheel::AdvancedCell(geometry, value)));
    } else {
      values.grid->ClearCell(row, place);
    }
    values.shown[segment][static_cast<std::size_t>(column)] = values.grid->CellText(row, place);
  }
}

void CColorWheelAdvDlg::Choose(bool useModeled) {
  useModeled_ = useModeled;
  Show();
}

void CColorWheelAdvDlg::Take() {
  // A message box in between lets the other grid's open cell end its edit.
  if (taking_) return;
  const QScopedValueRollback<bool> rollback(taking_, true);
  const std::size_t filled = color_wheel::AdvancedRowCount(segments_);
  for (std::size_t i = 0; i < filled; ++i) {
    for (ValueGrid* values : {&gains_, &pwm_}) {
      for (const AdvancedColumn column : kColumns) TakeCell(*values, i, column);
    }
  }
}

void CColorWheelAdvDlg::TakeCell(ValueGrid& values, std::size_t segment, AdvancedColumn column) {
  const int row = static_cast<int>(segment), place = GridColumnOf(column);
  QString& shown = values.shown[segment][static_cast<std::size_t>(column)];
  const QString text = values.grid->CellText(row, place);
  // The cell may show fewer digits than are stored.
  if (text == shown) return;
  const auto value = color_wheel::ValueOf(values.kind, column, useModeled_);
  const auto taken = color_wheel::TakeAdvancedValue(text.toStdString(), value, segments_[segment]);
  if (taken.message) {
    ShowMessageBox(*taken.message, color_wheel::kRangeCaption, msgbox::kIconWarning);
  }
  values.grid->SetCellText(row, place,
                           taken.rewrite ? QString::fromStdString(*taken.rewrite) : text);
  shown = values.grid->CellText(row, place);
}

void CColorWheelAdvDlg::accept() {
  // An edit that is still open ends as if its cell were left.
  pwm_.grid->EndEditing();
  gains_.grid->EndEditing();
  Take();
  QDialog::accept();
}

}  // namespace VeskSystemDefinition
