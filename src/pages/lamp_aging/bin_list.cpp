// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/bin_list.h"

#include <QEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QStyle>

namespace lamp_aging {

namespace {

constexpr int kHoverMs = 250;
constexpr Qt::Alignment kLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;

}  // namespace

BinList::BinList(QWidget* parent) : QTableWidget(parent) {
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setShowGrid(true);
  setMouseTracking(true);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setHighlightSections(false);
  hover_.setSingleShot(true);
  hover_.setInterval(kHoverMs);
  connect(&hover_, &QTimer::timeout, this, &BinList::SelectHovered);
  connect(this, &QTableWidget::itemSelectionChanged, this, &BinList::binSelectionChanged);
}

struct BinList::Column {
  const char* heading;
  const char* widestText;
  Qt::Alignment alignment;
};

std::span<const BinList::Column> BinList::FeedbackColumns() {
  static constexpr Column columns[] = {
      {" Bin#", "XXXBIN#XX", kLeft},
      {"Lower Limit", "XLower LimitX", kRight},
      {"Upper Limit", "XUpper LimitX", kRight},
      {"Avg. Pulse Amplitude Ratio", "XAvg. Pulse Amplitude RatioX", Qt::AlignCenter}};
  return columns;
}

void BinList::ShowFeedback(const BinTable& table) {
  ShowColumns(FeedbackColumns());
  ShowRows(FeedbackRows(table));
}

void BinList::ShowNoFeedback(const BinTable& table) {
  const std::span<const Column> columns = FeedbackColumns();
  const Column shown[] = {columns.front(), columns.back()};
  ShowColumns(shown);
  ShowRows(NoFeedbackRows(table));
}

int BinList::WidthOf(const Column& column) const {
  return fontMetrics().horizontalAdvance(QString::fromLatin1(column.widestText));
}

void BinList::ShowColumns(std::span<const Column> columns) {
  setColumnCount(static_cast<int>(columns.size()));
  int number = 0;
  for (const Column& column : columns) {
    auto* heading = new QTableWidgetItem(QString::fromLatin1(column.heading));
    heading->setTextAlignment(column.alignment);
    setHorizontalHeaderItem(number, heading);
    setColumnWidth(number++, WidthOf(column));
  }
  // Wide enough for the form with more columns, so that nothing moves when the other is shown.
  int width = 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  for (const Column& column : FeedbackColumns()) width += WidthOf(column);
  setMinimumWidth(width);
}

template <class Rows>
void BinList::ShowRows(const Rows& rows) {
  clearSelection();
  setCurrentItem(nullptr);
  setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < rowCount(); ++row) {
    for (int column = 0; column < columnCount(); ++column) {
      const std::string& text =
          rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
      auto* cell = new QTableWidgetItem(QString::fromStdString(text));
      cell->setData(Qt::TextAlignmentRole,
                    horizontalHeaderItem(column)->data(Qt::TextAlignmentRole));
      setItem(row, column, cell);
    }
  }
  scrollToTop();
}

std::optional<std::size_t> BinList::SelectedBin() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  if (rows.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(rows.front().row());
}

void BinList::SelectBin(std::size_t number) {
  const int row = static_cast<int>(number);
  if (row >= rowCount()) return;
  setCurrentCell(row, 0);
  selectRow(row);
  scrollToItem(item(row, 0));
  setFocus(Qt::OtherFocusReason);
}

bool BinList::viewportEvent(QEvent* event) {
  // Each movement starts the rest anew; what takes the pointer elsewhere ends it.
  if (event->type() == QEvent::MouseMove) {
    pointer_ = static_cast<QMouseEvent*>(event)->pos();
    hover_.start();
  }
  const bool ends = event->type() == QEvent::Leave || event->type() == QEvent::MouseButtonPress ||
                    event->type() == QEvent::Wheel;
  if (ends) hover_.stop();
  return QTableWidget::viewportEvent(event);
}

void BinList::SelectHovered() {
  const QModelIndex cell = indexAt(pointer_);
  if (cell.isValid()) selectRow(cell.row());
}

}  // namespace lamp_aging
