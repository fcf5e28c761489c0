// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/color_wheel_page.h"

#include <QSignalBlocker>

#include "framework/tool_name.h"
#include "host/calc/cw_support.h"
#include "host/data/color_wheel_data.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/gui/tool.h"
#include "host/project/log.h"
#include "host/project/ost_project.h"
#include "pages/color_wheel/color_wheel_adv_dlg.h"
#include "pages/color_wheel/filter_chart.h"
#include "pages/color_wheel/rules/color_list.h"
#include "pages/color_wheel/rules/frame_rate_list.h"
#include "pages/color_wheel/rules/segment_rows.h"
#include "pages/color_wheel/rules/wheel_check.h"
#include "pages/color_wheel/rules/wheel_sizes.h"
#include "ui_color_wheel_page.h"
#include "widgets/focus_wheel.h"
#include "widgets/when_left.h"

namespace VeskSystemDefinition {

namespace {

using GUI::RowOperation;

constexpr int kDialogId = 18400;
constexpr int kFirstFilterColumn = 2;
/// The colors of a project that names none.
constexpr const char* kAllColors = "RGBYCMW";

void LogError(const std::string& text) {
  tostream::GetLog(tostream::kLogError, tostream::kPrivUser) << Error << text << EndEntry;
}

std::string SupportedColors(const OstProject& project) {
  return CWSupport::GetSupportedCWs(project, kAllColors, 1);
}

std::vector<double> SupportedRates(const OstProject& project) {
  return color_wheel::ParseFrameRates(
      project.GetText("projectclass.seqrange.supportednominalframerates",
                      std::string(color_wheel::kNoSupportedRates)));
}

}  // namespace

SysDefColorWheelPage::SysDefColorWheelPage() : ToolPropertyPage(kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Color Wheel"));
}

SysDefColorWheelPage::~SysDefColorWheelPage() = default;

void SysDefColorWheelPage::CreateControls(QWidget* window) {
  ui_ = std::make_unique<Ui::ColorWheelPage>();
  ui_->setupUi(window);
  rows_ = std::make_unique<color_wheel::SegmentGrid>(*ui_->grid);
  ui_->caption->SetUp(*ui_->grid, QStringLiteral("Segment Geometry"), kFirstFilterColumn,
                      QStringLiteral("Filter Specifications"));
  ui_->split->setStretchFactor(0, 3);
  ui_->split->setStretchFactor(1, 2);
  color_wheel::SetUpFilterChart(*ui_->filters);
  BindButtons();
  ConnectControls();
  GUI::TurnOnlyWithFocus(*ui_->frameRate);
}

void SysDefColorWheelPage::BindButtons() {
  const std::pair<GUI::ImageButton*, RowOperation> buttons[] = {
      {ui_->add, RowOperation::kAdd},
      {ui_->copy, RowOperation::kCopy},
      {ui_->remove, RowOperation::kDelete},
      {ui_->toTop, RowOperation::kMoveToTop},
      {ui_->up, RowOperation::kMoveUp},
      {ui_->down, RowOperation::kMoveDown},
      {ui_->toBottom, RowOperation::kMoveToBottom}};
  for (const auto& [button, operation] : buttons) button->BindTo(ui_->grid, operation);
}

void SysDefColorWheelPage::ConnectControls() {
  GUI::CDynamicDataGrid* grid = ui_->grid;
  grid->SetRowOperationHandler([this](RowOperation operation) { RunRowOperation(operation); });
  QObject::connect(grid, &GUI::CDynamicDataGrid::cellEditEnded, grid, [this] { TakeGrid(); });
  QObject::connect(grid, &GUI::CDynamicDataGrid::rowSelectionChanged, grid,
                   [this] { ShowSelection(); });
  QObject::connect(ui_->wheel, &GUI::WheelView::segmentClicked, grid,
                   [this](int segment) { SelectSegment(segment); });
  GUI::WhenLeft(*ui_->spokeSize, [this] { TakeSpokeSize(); });
  QObject::connect(ui_->spokeSize, &QLineEdit::returnPressed, grid, [this] { TakeSpokeSize(); });
  QObject::connect(ui_->frameRate, &QComboBox::textActivated, grid,
                   [this](const QString& entry) { TakeFrameRate(entry); });
  QObject::connect(ui_->details, &QPushButton::clicked, grid, [this] { EditDetails(); });
}

void SysDefColorWheelPage::InitDialog() {
  if (!data_) return;
  static const OstProject noProject;
  const Framework::Tool* tool = GetTool();
  const OstProject& project = tool && tool->GetProject() ? *tool->GetProject() : noProject;
  rows_->SetColorList(color_wheel::ColorList(SupportedColors(project)));
  defaultRate_ = project.GetNumber("projectclass.seqrange.defaultnominalframerate",
                                   color_wheel::kDefaultFrameRate);
  supportedRates_ = SupportedRates(project);
  ShowSpokeSize();
  Show();
  ShowFrameRate();
}

int SysDefColorWheelPage::UpdateData(int save) {
  if (!data_) return 1;
  if (save) {
    if (ui_->spokeSize->isModified()) TakeSpokeSize();
    // The edit that ends here is taken below with the rest.
    {
      const QSignalBlocker blocker(ui_->grid);
      ui_->grid->EndEditing();
    }
    TakeGrid();
  } else {
    ShowSpokeSize();
    Show();
  }
  return 1;
}

// Data to controls.

void SysDefColorWheelPage::Show() {
  rows_->Show(*data_);
  UpdateButtons();
  UpdateTotal();
  UpdatePictures();
}

/// The box gets its text when it is left. Before that the value stands in it as a hint. Other data
/// replace it; row operations leave alone what is being typed.
void SysDefColorWheelPage::ShowSpokeSize() {
  const QString text = QString::fromStdString(color_wheel::SpokeSizeText(data_->SpokeSize));
  ui_->spokeSize->setPlaceholderText(text);
  if (!ui_->spokeSize->text().isEmpty()) ui_->spokeSize->setText(text);
}

/// The entries are made once; which of them is the data's rate is shown each time.
void SysDefColorWheelPage::ShowFrameRate() {
  const color_wheel::FrameRateList list =
      color_wheel::MakeFrameRateList(supportedRates_, defaultRate_, data_->NominalFrameRate);
  if (list.storeAtOnce) data_->NominalFrameRate = *list.storeAtOnce;
  if (!initialised_) {
    for (const std::string& entry : list.entries) {
      ui_->frameRate->addItem(QString::fromStdString(entry));
    }
    ui_->frameRate->setEnabled(list.enabled);
    initialised_ = true;
  }
  ui_->frameRate->setCurrentIndex(list.selected ? static_cast<int>(*list.selected) : -1);
}

void SysDefColorWheelPage::UpdateTotal() {
  const double total = color_wheel::CountedTotal(data_->Segments);
  ui_->total->setText(QString::fromStdString(color_wheel::TotalText(total)));
  if (const auto fault = color_wheel::TotalFault(total)) LogError(*fault);
}

void SysDefColorWheelPage::UpdateButtons() {
  ui_->grid->SetOperationEnabled(RowOperation::kAdd,
                                 ui_->grid->RowCount() < color_wheel::kMaxAddedRows);
}

void SysDefColorWheelPage::UpdatePictures() {
  ui_->wheel->SetWheel(CWSegsOf(data_->Segments), data_->SpokeSize);
  ShowSelection();
}

void SysDefColorWheelPage::ShowSelection() {
  const std::set<std::size_t> selected = rows_->Selected();
  ui_->wheel->SetSelected(selected);
  color_wheel::DrawFilters(*ui_->filters, *data_, selected);
}

void SysDefColorWheelPage::SelectSegment(int segment) { ui_->grid->SelectRows(segment, segment); }

// Controls to data.

void SysDefColorWheelPage::TakeGrid() {
  const color_wheel::SegmentGrid::Taken taken = rows_->Take(*data_);
  for (int i = 0; i < taken.refusedSizes; ++i) LogError(color_wheel::kSizeMessage);
  if (taken.changed) Modified();
  UpdateTotal();
  UpdatePictures();
}

void SysDefColorWheelPage::TakeSpokeSize() {
  if (!data_) return;
  if (color_wheel::StoreSpokeSize(ui_->spokeSize->text().toStdString(), *data_)) {
    Modified();
    UpdatePictures();
  }
  ui_->spokeSize->setText(QString::fromStdString(color_wheel::SpokeSizeText(data_->SpokeSize)));
}

void SysDefColorWheelPage::TakeFrameRate(const QString& entry) {
  if (color_wheel::SelectFrameRate(entry.toStdString(), supportedRates_, *data_)) Modified();
}

// Row operations.

void SysDefColorWheelPage::RunRowOperation(RowOperation operation) {
  if (!data_) return;
  switch (operation) {
    case RowOperation::kAdd:
      return AddRow();
    case RowOperation::kCopy:
      return CopyRows();
    case RowOperation::kDelete:
      return DeleteRows();
    default:
      return MoveRows(operation);
  }
}

void SysDefColorWheelPage::AddRow() {
  color_wheel::AddSegment(*data_, 0);
  rows_->ShowFrom(*data_, data_->Segments.size() - 1);
  Show();
}

void SysDefColorWheelPage::CopyRows() {
  const std::size_t first = data_->Segments.size();
  color_wheel::CopySegments(*data_, ui_->grid->SelectedRowBlocks());
  rows_->ShowFrom(*data_, first);
  UpdateButtons();
  UpdateTotal();
  Modified();
  UpdatePictures();
}

void SysDefColorWheelPage::DeleteRows() {
  const int answer = ShowMessageBox(
      "Are you sure you want to delete the selected Segment(s)?", "Delete Segment(s)",
      msgbox::kYesNo | msgbox::kIconQuestion | msgbox::kDefaultButton2);
  if (answer == msgbox::kAnswerYes) {
    const GUI::RowBlocks blocks = ui_->grid->SelectedRowBlocks();
    {
      // Until the data follow, rows and segments do not match.
      const QSignalBlocker blocker(ui_->grid);
      ui_->grid->DeleteSelectedRows();
    }
    color_wheel::DeleteSegments(*data_, blocks);
    Modified();
  }
  Show();
}

void SysDefColorWheelPage::MoveRows(RowOperation operation) {
  GUI::CDynamicDataGrid& grid = *ui_->grid;
  {
    const QSignalBlocker blocker(grid);
    if (operation == RowOperation::kMoveToTop) grid.MoveSelectedToTop();
    if (operation == RowOperation::kMoveUp) grid.MoveSelectedUp();
    if (operation == RowOperation::kMoveDown) grid.MoveSelectedDown();
    if (operation == RowOperation::kMoveToBottom) grid.MoveSelectedToBottom();
  }
  rows_->FollowRows(*data_);
  UpdateButtons();
  Modified();
  UpdatePictures();
}

void SysDefColorWheelPage::EditDetails() {
  if (!data_) return;
  CColorWheelAdvDlg dialog(data_->Segments, data_->UseModeledPwm, Window());
  if (RunModal(dialog) != QDialog::Accepted) return;
  if (color_wheel::ApplyAdvanced(dialog.Segments(), dialog.UseModeled(), *data_)) Modified();
}

Findings SysDefColorWheelPage::CheckData(const ColorWheelData& data, const OstProject* project) {
  static const OstProject noProject;
  const OstProject& keys = project ? *project : noProject;
  return color_wheel::CheckWheel(data, SupportedColors(keys), SupportedRates(keys));
}

}  // namespace VeskSystemDefinition
