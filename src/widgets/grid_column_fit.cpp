// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/grid_column_fit.h"

#include <QHeaderView>
#include <QTableView>
#include <algorithm>

#include "widgets/rules/column_widths.h"

namespace GUI {

namespace {

/// Room beside a cell's text: margins and a drop-down's arrow.
constexpr int kBesideText = 28;

}  // namespace

GridColumnFit::GridColumnFit(QTableView& table) : QObject(&table), table_(table) {
  connect(table.horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { TakeWidth(column, width); });
}

void GridColumnFit::SetExpanding(bool expanding) {
  expanding_ = expanding;
  Fit();
}

void GridColumnFit::SetSample(int column, const QString& sample) {
  samples_[column] = sample;
  Fit();
}

void GridColumnFit::Reset() {
  samples_.clear();
  chosenWidths_.clear();
  Fit();
}

int GridColumnFit::Minimum(int column) const {
  const int sample = table_.fontMetrics().horizontalAdvance(samples_.value(column)) + kBesideText;
  return std::max(table_.horizontalHeader()->sectionSizeHint(column), sample);
}

void GridColumnFit::TakeWidth(int column, int width) {
  if (!fitting_) chosenWidths_[column] = std::max(width, 1);
}

void GridColumnFit::Fit() {
  QHeaderView& header = *table_.horizontalHeader();
  std::vector<ColumnWidth> columns;
  int wantedTogether = 0;
  for (int column = 0; column < header.count(); ++column) {
    const int minimum = Minimum(column);
    columns.push_back({chosenWidths_.value(column, minimum), minimum});
    wantedTogether += columns.back().wanted;
  }
  if (columns.empty()) return;
  const std::vector<int> widths =
      ShareWidth(expanding_ ? table_.viewport()->width() : wantedTogether, columns);
  fitting_ = true;
  for (int column = 0; column < header.count(); ++column) {
    header.resizeSection(column, widths[static_cast<std::size_t>(column)]);
  }
  fitting_ = false;
}

}  // namespace GUI
