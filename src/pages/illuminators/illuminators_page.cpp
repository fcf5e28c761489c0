// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/illuminators_page.h"

#include <QFontMetrics>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

#include "framework/tool_name.h"
#include "host/calc/helper.h"
#include "host/gui/tool.h"
#include "pages/illuminators/illuminator_row.h"
#include "pages/illuminators/rules/illuminator_findings.h"
#include "ui_illuminators_page.h"

using illuminators::IlluminatorRow;
using illuminators::kFixedRows;
using illuminators::kRows;

namespace {

constexpr int kDialogId = 18002;

/// The devices that match the glow of their sources, where they have the feature.
constexpr int kFirstGlowmatchKind = 18;
constexpr int kLastGlowmatchKind = 21;

bool HasGlowmatch(const OstProject& project) {
  const Helper::Device device = Helper(project).GetDevice();
  return device.kind >= kFirstGlowmatchKind && device.kind <= kLastGlowmatchKind &&
         device.glowmatch == 1;
}

/// A column's head stands in two lines, broken before its parenthesis, so that the table has room
/// in a small window.
void WrapHead(QLabel& head, QGridLayout& table) {
  const QString text = head.text();
  const qsizetype end = text.indexOf(QLatin1Char('('));
  const QFontMetrics metrics(head.font());
  head.setWordWrap(true);
  head.setFixedWidth(std::max(metrics.horizontalAdvance(text.left(end)),
                              metrics.horizontalAdvance(text.mid(end))));
  table.setAlignment(&head, Qt::AlignRight);
}

}  // namespace

IlluminatorsPage::IlluminatorsPage()
    : ToolPropertyPage(VeskSystemDefinition::kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Illuminator Definition"));
}

void IlluminatorsPage::CreateControls(QWidget* window) {
  Ui::IlluminatorsPage ui;
  ui.setupUi(window);
  glowmatchNote_ = ui.glowmatchNote;
  glowmatchNote_->hide();
  diagram_ = ui.diagram;
  for (QLabel* head : {ui.enableDelayHead, ui.disableDelayHead, ui.fallMarginHead}) {
    WrapHead(*head, *ui.table);
  }
  for (int row = 0; row < kRows; ++row) {
    rows_[static_cast<std::size_t>(row)] = new IlluminatorRow(row, *window, *ui.table);
    ConnectRow(row);
  }
  for (int row = 0; row < kFixedRows; ++row) rows_[static_cast<std::size_t>(row)]->SetToolTips();
}

void IlluminatorsPage::ConnectRow(int row) {
  const IlluminatorRow* shown = rows_[static_cast<std::size_t>(row)];
  QObject::connect(shown, &IlluminatorRow::illuminatorChosen, shown, [this] { Exchange(); });
  QObject::connect(shown, &IlluminatorRow::timeLeft, shown, [this] { Exchange(); });
  QObject::connect(shown, &IlluminatorRow::entered, shown, [this, row] {
    drawnRow_ = row;
    ShowTiming();
  });
}

void IlluminatorsPage::InitDialog() {
  if (!data_) return;
  if (!initialised_) SetUpRows();
  initialised_ = true;
  UpdateData(0);
}

void IlluminatorsPage::SetUpRows() {
  const int shown = illuminators::ShownRows(*data_);
  for (int row = kFixedRows; row < kRows; ++row) {
    IlluminatorRow* each = rows_[static_cast<std::size_t>(row)];
    if (row < shown) {
      each->SetToolTips();
    } else {
      each->Hide();
    }
  }
  const Framework::Tool* tool = GetTool();
  glowmatchNote_->setVisible(tool && tool->GetProject() && HasGlowmatch(*tool->GetProject()));
}

int IlluminatorsPage::UpdateData(int save) {
  if (!data_) return 1;
  if (save) {
    const QScopedValueRollback<bool> rollback(taking_, true);
    return Take() == kRows ? 1 : 0;
  }
  ShowIlluminators();
  ShowTimes(kRows);
  return 1;
}

int IlluminatorsPage::OnKillActive() {
  // A click on another page leaves the field first.
  if (justRefused_) return 0;
  return UpdateData(1) && UpdateData(0) ? 1 : 0;
}

// Data to controls.

void IlluminatorsPage::ShowIlluminators() {
  for (IlluminatorRow* row : rows_) row->ShowIlluminator(*data_);
}

/// The times of the first `rows` rows, and the picture.
void IlluminatorsPage::ShowTimes(int rows) {
  for (int row = 0; row < rows; ++row) rows_[static_cast<std::size_t>(row)]->ShowTimes(*data_);
  ShowTiming();
}

void IlluminatorsPage::ShowTiming() {
  if (!data_) return;
  const IllumCharacteristics* illuminator = illuminators::ShownIn(*data_, drawnRow_);
  diagram_->Show(illuminator ? std::optional(*illuminator) : std::nullopt);
}

// Controls to data.

/// Stores row after row up to one with a refused time, which it returns; kRows when there is none.
int IlluminatorsPage::Take() {
  bool changed = false;
  int row = 0;
  for (; row < kRows; ++row) {
    IlluminatorRow* taken = rows_[static_cast<std::size_t>(row)];
    const auto times = taken->TakeTimes();
    if (!times) break;
    changed |= illuminators::StoreRow(*data_, row, taken->EditedChoice(), *times);
  }
  if (changed) Modified();
  return row;
}

/// After an edit: takes the controls and shows the data. A refused time and what was not taken for
/// it keep their text.
void IlluminatorsPage::Exchange() {
  // A message box in between takes the focus from the field that is being taken.
  if (!data_ || taking_) return;
  const QScopedValueRollback<bool> rollback(taking_, true);
  const int taken = Take();
  ShowIlluminators();
  ShowTimes(taken);
  justRefused_ = taken < kRows;
  if (justRefused_) QTimer::singleShot(0, rows_[0], [this] { justRefused_ = false; });
}

Findings IlluminatorsPage::CheckData(const IlluminatorsPageData& data,
                                     const OstProject* /*project*/) {
  return illuminators::Check(data);
}
