// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/sys_def_frame_rates_page.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "framework/tool_name.h"
#include "host/gui/slow_tool_tip.h"
#include "host/gui/tool.h"
#include "pages/frame_rates/coverage_view.h"
#include "pages/frame_rates/rules/explanation.h"
#include "pages/frame_rates/rules/frame_rate_findings.h"
#include "pages/frame_rates/rules/selection.h"
#include "platform/text/number.h"
#include "ui_sys_def_frame_rates_page.h"
#include "widgets/checkedlist.h"
#include "widgets/dynamic_data_grid.h"

namespace {

constexpr int kDialogId = 18583;
constexpr int kNoteWidth = 440;

const GUI::GridColumn kColumns[] = {{QStringLiteral("Source Frame Rates")},
                                    {QStringLiteral("Sequence Sync Mode")}};
// The rows tell their mode by their background, on a light and on a dark desktop alike.
const QColor kInternalBackground(204, 204, 204);
const QColor kLockedBackground(Qt::white);
const QColor kRowText(Qt::black);

constexpr const char* kNote =
    "Please Note - \n"
    "Seq Rates\n"
    "- Use List box above to choose rates to build sequences for\n"
    "- Seq Rates Entry that includes 60Hz is selected by default and cannot be deselected\n"
    "\n"
    "Supported Frame Rates\n"
    "- The table is read-only and gets updated based on Seq Rates selection\n"
    "- All Frame rates mentioned in the first column will be supported\n"
    "- Column information - \n"
    "  1. Source Frame rates - indicates incoming frame rates supported by the ASIC (grouped as "
    "ranges)\n"
    "  2. Sequence mode\n"
    "     - LEV - indicates that the rate can be supported synchronously based on sequence rates "
    "selection\n"
    "     - LIV  - indicates that the sequences will run asynchronously to support the frame rate "
    "range  ";

/// Calls back when the pointer leaves a widget.
class LeaveFilter : public QObject {
 public:
  LeaveFilter(QObject* parent, std::function<void()> left)
      : QObject(parent), left_(std::move(left)) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Leave) left_();
    return false;
  }

 private:
  std::function<void()> left_;
};

}  // namespace

SysDefFrameRatesPage::SysDefFrameRatesPage()
    : ToolPropertyPage(VeskSystemDefinition::kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Frame Rates"));
}

SysDefFrameRatesPage::~SysDefFrameRatesPage() = default;

void SysDefFrameRatesPage::CreateControls(QWidget* window) {
  Ui::SysDefFrameRatesPage ui;
  ui.setupUi(window);
  list_ = ui.ranges;
  grid_ = ui.rates;
  coverage_ = ui.coverage;
  whyBox_ = ui.why;
  explanation_ = ui.explanation;
  ui.note->setText(QString::fromLatin1(kNote));
  ui.note->ensurePolished();
  ui.note->setMinimumSize(kNoteWidth, ui.note->heightForWidth(kNoteWidth));
  grid_->SetColumns(kColumns);
  grid_->SetRowHeadingsVisible(false);
  grid_->SetReadOnly(true);
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setMouseTracking(true);
  grid_->viewport()->installEventFilter(new LeaveFilter(window, [this] { PointAtRow(-1); }));
  // Its texts are those of the bars.
  Framework::SetSlowToolTip(*coverage_, {});
  Framework::SetSlowToolTip(*whyBox_, QStringLiteral("Type a source rate in Hz, such as 47.95."));
  const int drop = (whyBox_->sizeHint().height() - whyBox_->fontMetrics().height()) / 2;
  for (QLabel* beside : {ui.whyLabel, ui.explanation}) beside->setContentsMargins(0, drop, 0, 0);
  const auto on = [window](auto* sender, auto signal, auto run) {
    QObject::connect(sender, signal, window, run);
  };
  on(list_, &checkedlist::checkChanged, [this] {
    UpdateData(1);
    UpdateData(0);
  });
  on(grid_, &GUI::CDynamicDataGrid::rowSelectionChanged, [this] { SelectRow(); });
  on(grid_, &QAbstractItemView::entered,
     [this](const QModelIndex& cell) { PointAtRow(cell.row()); });
  on(coverage_, &frame_rates::CoverageView::binClicked, [this](int bin) { ClickBin(bin); });
  on(coverage_, &frame_rates::CoverageView::binHovered, [this](int bin) { PointAtBin(bin); });
  on(whyBox_, &QLineEdit::textChanged, [this] { ShowExplanation(); });
}

int SysDefFrameRatesPage::UpdateData(int save) {
  if (!data_) return 1;
  if (!listInitialised_) InitialiseList();
  if (save) {
    StoreSelection();
  } else {
    ShowSelection();
  }
  return 1;
}

// Once for the life of the page, and after a revert: the item that stands for the default cannot be
// ticked, so nobody could choose it again.
void SysDefFrameRatesPage::InitialiseList() {
  listInitialised_ = true;
  if (const Framework::Tool* tool = GetTool(); tool && tool->GetProject()) {
    ranges_ = frame_rates::ReadSequenceRanges(*tool->GetProject());
  }
  if (frame_rates::SelectDefault(ranges_, data_->FrameRates)) Modified();
  for (const frame_rates::SequenceRange& range : ranges_) {
    list_->SetItemText(range.index, QString::fromStdString(frame_rates::ItemText(range)));
    list_->SetItemText(range.index, 1,
                       frame_rates::IsSelected(range, data_->FrameRates) ? QStringLiteral("Yes")
                                                                         : QStringLiteral("No"));
    list_->EnableItem(range.index, frame_rates::CanToggle(range));
  }
}

void SysDefFrameRatesPage::ShowSelection() {
  for (const frame_rates::SequenceRange& range : ranges_) {
    const bool selected = frame_rates::IsSelected(range, data_->FrameRates);
    list_->SetItemText(range.index, 1, selected ? QStringLiteral("Yes") : QStringLiteral("No"));
  }
  table_ = frame_rates::ComputeRateTable(frame_rates::SelectedRanges(ranges_, data_->FrameRates));
  data_->FreqBinTable = frame_rates::ToFreqBins(table_);
  rows_ = frame_rates::MergeForDisplay(data_->FreqBinTable);
  data_->displayTable.clear();
  for (const frame_rates::DisplayRow& row : rows_) data_->displayTable.push_back(row.bin);
  coverage_->SetTable(data_->FreqBinTable);
  FillGrid();
  ShowExplanation();
}

void SysDefFrameRatesPage::StoreSelection() {
  std::vector<bool> ticked;
  for (const frame_rates::SequenceRange& range : ranges_) {
    ticked.push_back(list_->ItemText(range.index, 1) == QLatin1String("Yes"));
  }
  if (frame_rates::StoreSelection(ranges_, ticked, data_->FrameRates)) Modified();
}

void SysDefFrameRatesPage::FillGrid() {
  const QSignalBlocker quiet(grid_);
  pinnedRow_ = -1;
  grid_->ClearRows();
  for (const frame_rates::DisplayRow& row : rows_) {
    grid_->InsertRow({QString::fromStdString(frame_rates::RateText(row.bin)),
                      QString::fromStdString(frame_rates::SyncText(row.bin))},
                     -1, 0, {kRowText, kRowText}, true,
                     row.bin.IsLockToInternalVsync ? kInternalBackground : kLockedBackground);
  }
}

void SysDefFrameRatesPage::ShowExplanation() {
  const std::string typed = whyBox_->text().trimmed().toStdString();
  coverage_->SetProbe(platform::ParseNumber(typed));
  explanation_->setText(
      typed.empty() ? QString() : QString::fromStdString(frame_rates::Explain(table_, typed)));
}

int SysDefFrameRatesPage::SelectedRow() const {
  const auto blocks = grid_->SelectedBlocks();
  return blocks.empty() ? -1 : blocks.front().first;
}

std::optional<frame_rates::BinSpan> SysDefFrameRatesPage::BinsOfRow(int row) const {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return std::nullopt;
  const frame_rates::DisplayRow& shown = rows_[static_cast<std::size_t>(row)];
  return frame_rates::BinSpan{static_cast<int>(shown.firstBin), static_cast<int>(shown.lastBin)};
}

int SysDefFrameRatesPage::RowOfBin(int bin) const {
  if (bin < 0) return -1;
  const auto place = static_cast<std::size_t>(bin);
  const auto row = std::ranges::find_if(rows_, [place](const frame_rates::DisplayRow& shown) {
    return shown.firstBin <= place && place <= shown.lastBin;
  });
  return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

void SysDefFrameRatesPage::SelectRow() {
  pinnedRow_ = SelectedRow();
  coverage_->SelectBins(BinsOfRow(pinnedRow_));
}

void SysDefFrameRatesPage::PointAtRow(int row) { coverage_->PointAtBins(BinsOfRow(row)); }

// The bar alone is selected, with the row that it is part of.
void SysDefFrameRatesPage::ClickBin(int bin) {
  pinnedRow_ = RowOfBin(bin);
  HighlightRow(pinnedRow_);
  coverage_->SelectBins(frame_rates::BinSpan{bin, bin});
}

// The row is shown as selected for as long as the pointer is on one of its bars.
void SysDefFrameRatesPage::PointAtBin(int bin) {
  const int row = RowOfBin(bin);
  coverage_->PointAtBins(BinsOfRow(row));
  HighlightRow(row < 0 ? pinnedRow_ : row);
}

void SysDefFrameRatesPage::HighlightRow(int row) {
  const QSignalBlocker quiet(grid_);
  if (row < 0) {
    grid_->clearSelection();
  } else {
    grid_->SelectRows(row, row);
    grid_->scrollTo(grid_->model()->index(row, 0));
  }
  grid_->viewport()->update();
}

Findings SysDefFrameRatesPage::CheckData(const SysDefFrameRatesPageData& data,
                                         const OstProject* project) {
  return project ? frame_rates::Check(data, *project) : Findings();
}

std::optional<std::string> SysDefFrameRatesPage::Explain(const SysDefFrameRatesPageData& data,
                                                         const OstProject* project,
                                                         const std::string& rate) {
  if (!project) return std::nullopt;
  const auto ranges = frame_rates::ReadSequenceRanges(*project);
  // As the page shows it: with the default choice where there is none that fits.
  std::vector<double> rates = data.FrameRates;
  (void)frame_rates::SelectDefault(ranges, rates);
  return frame_rates::Explain(
      frame_rates::ComputeRateTable(frame_rates::SelectedRanges(ranges, rates)),
      std::string_view(rate));
}
