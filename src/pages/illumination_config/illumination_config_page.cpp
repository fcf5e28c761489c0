// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/illumination_config_page.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "framework/tool_name.h"
#include "host/gui/message_box.h"
#include "pages/illumination_config/rules/configuration_check.h"
#include "pages/illumination_config/rules/wheel_total.h"
#include "ui_illumination_config_page.h"

namespace VeskSystemDefinition {

namespace {

using GUI::Image;
using GUI::RowOperation;
using illumination_config::SourceGrid;
using illumination_config::WheelEditor;

constexpr int kDialogId = 18582;

}  // namespace

SysDefIllumConfigPage::SysDefIllumConfigPage() : ToolPropertyPage(kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Illumination Configuration "));
}

SysDefIllumConfigPage::~SysDefIllumConfigPage() = default;

void SysDefIllumConfigPage::CreateControls(QWidget* window) {
  ui_ = std::make_unique<Ui::IlluminationConfigPage>();
  ui_->setupUi(window);
  sources_ = std::make_unique<SourceGrid>(*ui_->sources);
  wheel_ = std::make_unique<illumination_config::WheelGrid>(*ui_->wheel);
  SetUpButtons();
  ConnectSources();
  ConnectWheel();
  EnableWheel(false);
}

void SysDefIllumConfigPage::SetUpButtons() {
  ui_->addSource->BindTo(ui_->sources, RowOperation::kAdd);
  ui_->deleteSource->BindTo(ui_->sources, RowOperation::kDelete);
  const struct {
    GUI::ImageButton* button;
    Image image;
    RowOperation operation;
  } buttons[] = {{ui_->addSegment, Image::kAddRow, RowOperation::kAdd},
                 {ui_->copySegments, Image::kCopyRows, RowOperation::kCopy},
                 {ui_->deleteSegments, Image::kDeleteRows, RowOperation::kDelete},
                 {ui_->toTop, Image::kMoveToTop, RowOperation::kMoveToTop},
                 {ui_->up, Image::kMoveUp, RowOperation::kMoveUp},
                 {ui_->down, Image::kMoveDown, RowOperation::kMoveDown},
                 {ui_->toBottom, Image::kMoveToBottom, RowOperation::kMoveToBottom}};
  for (const auto& [button, image, operation] : buttons) {
    button->SetImage(image, button->accessibleName());
    QObject::connect(button, &QToolButton::clicked, ui_->wheel,
                     [grid = ui_->wheel, op = operation] { grid->RunRowOperation(op); });
    wheelControls_.push_back(button);
  }
  wheelControls_.insert(wheelControls_.end(), {ui_->wheel, ui_->spokeSize, ui_->picture});
}

void SysDefIllumConfigPage::ConnectSources() {
  using GUI::CDynamicDataGrid;
  CDynamicDataGrid* grid = ui_->sources;
  grid->OfferRowOperations({RowOperation::kAdd, RowOperation::kDelete});
  grid->SetRowOperationHandler([this](RowOperation operation) { RunSourceOperation(operation); });
  QObject::connect(grid, &CDynamicDataGrid::cellEditEnded, grid, [this] { Modified(); });
  QObject::connect(grid, &CDynamicDataGrid::checkBoxToggled, grid,
                   [this](int row) { ViaWheelToggled(row); });
  QObject::connect(grid, &CDynamicDataGrid::cellClicked, grid,
                   [this](int row, int column) { SourceClicked(row, column); });
  // The keyboard selects sources too.
  QObject::connect(grid, &CDynamicDataGrid::rowSelectionChanged, grid, [this] {
    const unsigned id = sources_->SelectedId();
    if (id != 0 && id != current_) SelectSource(id);
  });
}

void SysDefIllumConfigPage::ConnectWheel() {
  GUI::CDynamicDataGrid* grid = ui_->wheel;
  grid->SetRowOperationHandler([this](RowOperation operation) { RunWheelOperation(operation); });
  QObject::connect(grid, &GUI::CDynamicDataGrid::cellEditEnded, grid, [this] { TakeWheel(); });
  QObject::connect(grid, &GUI::CDynamicDataGrid::rowSelectionChanged, grid,
                   [this] { UpdatePicture(); });
  QObject::connect(ui_->picture, &GUI::WheelView::segmentClicked, grid,
                   [grid](int segment) { grid->SelectRows(segment, segment); });
  QObject::connect(ui_->spokeSize, &QLineEdit::textChanged, grid,
                   [this](const QString& text) { TakeSpokeSize(text); });
}

void SysDefIllumConfigPage::InitDialog() {
  if (!data_ || (gridData_ && *gridData_ == *data_)) return;
  Load();
}

int SysDefIllumConfigPage::UpdateData(int save) {
  if (data_ && save) Store();
  return 1;
}

void SysDefIllumConfigPage::Load() {
  {
    const QSignalBlocker blocker(ui_->sources);
    sources_->Show(illumination_config::LoadRows(*data_));
  }
  ui_->sources->SetOperationEnabled(RowOperation::kAdd,
                                    ui_->sources->RowCount() < illumination_config::kMaxSources);
  gridData_ = *data_;
  SelectSource(0);
}

void SysDefIllumConfigPage::Store() {
  ui_->sources->EndEditing();
  ui_->wheel->EndEditing();
  *data_ = illumination_config::StoreRows(sources_->Rows(), *data_);
  gridData_ = *data_;
}

// Sources.

void SysDefIllumConfigPage::RunSourceOperation(RowOperation operation) {
  if (operation == RowOperation::kAdd) sources_->Add();
  if (operation == RowOperation::kDelete) {
    const QSignalBlocker blocker(ui_->sources);
    sources_->DeleteSelected();
  }
  ui_->sources->SetOperationEnabled(RowOperation::kAdd,
                                    ui_->sources->RowCount() < illumination_config::kMaxSources);
  const unsigned selected = sources_->SelectedId();
  if (selected != current_) SelectSource(selected);
  Modified();
}

void SysDefIllumConfigPage::SourceClicked(int row, int column) {
  if (column == SourceGrid::kViaWheel) Modified();
  const unsigned id = sources_->IdOf(row);
  if (id != 0 && id != current_) SelectSource(id);
}

void SysDefIllumConfigPage::ViaWheelToggled(int row) {
  Modified();
  SelectSource(sources_->IdOf(row));
}

void SysDefIllumConfigPage::SelectSource(unsigned id) {
  ui_->wheel->EndEditing();
  current_ = id;
  const bool viaWheel = id != 0 && sources_->IsViaWheel(id);
  if (viaWheel && !Current()) sources_->MakeEditor(id);
  if (!viaWheel && Current()) sources_->RemoveEditor(id);
  EnableWheel(viaWheel);
  ShowWheel();
  UpdateTotal();
}

// The wheel of the current source.

void SysDefIllumConfigPage::EnableWheel(bool enable) {
  for (QWidget* control : wheelControls_) control->setEnabled(enable);
}

void SysDefIllumConfigPage::ShowWheel() {
  const WheelEditor* editor = Current();
  const QSignalBlocker grid(ui_->wheel), box(ui_->spokeSize);
  wheel_->Show(editor ? editor->rows : std::vector<illumination_config::WheelRow>());
  ui_->spokeSize->setText(
      editor ? QString::fromStdString(illumination_config::DegreesText(editor->spokeSize))
             : QString());
  UpdatePicture();
}

void SysDefIllumConfigPage::RunWheelOperation(RowOperation operation) {
  WheelEditor* editor = Current();
  if (!editor) return;
  {
    const QSignalBlocker blocker(ui_->wheel);
    ui_->wheel->RunOwnOperation(operation);
  }
  TakeWheel();
}

void SysDefIllumConfigPage::TakeWheel() {
  WheelEditor* editor = Current();
  if (!editor) return;
  editor->rows = wheel_->Take();
  UpdatePicture();
  UpdateTotal();
  Modified();
}

void SysDefIllumConfigPage::TakeSpokeSize(const QString& text) {
  WheelEditor* editor = Current();
  const double size = illumination_config::ReadDegrees(text.toStdString());
  if (!editor || size == editor->spokeSize) return;
  editor->spokeSize = size;
  UpdatePicture();
  Modified();
}

void SysDefIllumConfigPage::UpdateTotal() {
  const WheelEditor* editor = Current();
  if (!editor) {
    ui_->total->setText(QString::fromLatin1(illumination_config::kNoTotalText));
    return;
  }
  const double total =
      illumination_config::WheelTotal(illumination_config::MakeWheel(*editor).Segments);
  ui_->total->setText(QString::fromStdString(illumination_config::DegreesText(total)));
  if (const auto refusal = illumination_config::TotalRefusal(editor->rows.size(), total)) {
    ShowMessageBox(*refusal, {}, msgbox::kIconWarning);
  }
}

void SysDefIllumConfigPage::UpdatePicture() {
  const WheelEditor* editor = Current();
  const ColorWheelData wheel = editor ? illumination_config::MakeWheel(*editor) : ColorWheelData();
  ui_->picture->SetWheel(CWSegsOf(wheel.Segments), wheel.SpokeSize);
  std::set<std::size_t> selected;
  for (const auto& [first, last] : ui_->wheel->SelectedRowBlocks()) {
    for (int row = first; row <= last; ++row) selected.insert(static_cast<std::size_t>(row));
  }
  ui_->picture->SetSelected(std::move(selected));
}

Findings SysDefIllumConfigPage::CheckData(const IlluminationConfigurationData& data,
                                          const OstProject* /*project*/) {
  return illumination_config::CheckConfiguration(data);
}

}  // namespace VeskSystemDefinition
