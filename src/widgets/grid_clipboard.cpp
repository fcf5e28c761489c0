// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/grid_clipboard.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>
#include <set>
#include <utility>

#include "widgets/data_grid_model.h"
#include "widgets/rules/tab_text.h"

namespace GUI {

namespace {

QString Translated(const char* text) { return QCoreApplication::translate("GUI::Paste", text); }

std::set<std::pair<int, int>> CellsOf(const QItemSelection& selection) {
  std::set<std::pair<int, int>> cells;
  for (const QItemSelectionRange& range : selection) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      for (int column = range.left(); column <= range.right(); ++column) cells.emplace(row, column);
    }
  }
  return cells;
}

/// The first row and the first column that have a selected cell.
std::pair<int, int> Corner(const QItemSelection& selection) {
  constexpr int far = std::numeric_limits<int>::max();
  std::pair<int, int> corner{far, far};
  for (const QItemSelectionRange& range : selection) {
    corner.first = std::min(corner.first, range.top());
    corner.second = std::min(corner.second, range.left());
  }
  return corner;
}

std::vector<PastePlan::Cell> Targets(const QItemSelection& selection, const TextRows& rows) {
  std::vector<PastePlan::Cell> targets;
  if (rows.size() == 1 && rows.front().size() == 1) {
    const QString text = QString::fromStdU16String(rows.front().front());
    for (const auto& [row, column] : CellsOf(selection)) targets.push_back({row, column, text});
    return targets;
  }
  auto [row, firstColumn] = Corner(selection);
  for (const auto& texts : rows) {
    int column = firstColumn;
    for (const auto& text : texts) {
      targets.push_back({row, column++, QString::fromStdU16String(text)});
    }
    ++row;
  }
  return targets;
}

/// Why the cell cannot take its text.
std::optional<QString> Refusal(const DataGridModel& model, const PastePlan::Cell& cell) {
  if (!model.IsChangeable(cell.row, cell.column)) return Translated("This cell cannot be changed.");
  return model.Refusal(cell.row, cell.column, cell.text);
}

}  // namespace

QString CopiedCells(const DataGridModel& model, const QItemSelection& selection) {
  const auto cells = CellsOf(selection);
  std::set<int> columns;
  for (const auto& [row, column] : cells) columns.insert(column);
  TextRows rows;
  int lastRow = -1;
  for (const auto& [row, column] : cells) {
    if (row != lastRow) rows.emplace_back(columns.size());
    lastRow = row;
    const auto place = std::distance(columns.begin(), columns.find(column));
    rows.back()[static_cast<std::size_t>(place)] = model.Row(row).texts[column].toStdU16String();
  }
  return QString::fromStdU16String(ToTabText(rows));
}

PastePlan PlanPaste(const DataGridModel& model, const QItemSelection& selection,
                    const QString& text) {
  PastePlan plan;
  if (selection.isEmpty()) return plan;
  std::vector<PastePlan::Cell> targets = Targets(selection, FromTabText(text.toStdU16String()));
  const auto fits = [&model](const PastePlan::Cell& c) { return model.Holds(c.row, c.column); };
  if (!std::ranges::all_of(targets, fits)) {
    plan.refusal = Translated("The copied block is larger than the room for it in the table.");
    return plan;
  }
  for (PastePlan::Cell& cell : targets) {
    // Spreadsheets write TRUE and FALSE.
    if (model.Column(cell.column).kind == CellKind::kCheckBox) cell.text = cell.text.toLower();
    // A whole row may be pasted onto its like, read-only cells included.
    const QString& shown = model.Row(cell.row).texts[cell.column];
    if (cell.text == shown) continue;
    if (const auto refusal = Refusal(model, cell)) {
      plan.refusal = Translated("Row %1, column \"%2\": %3\n\nNothing was pasted.")
                         .arg(QString::number(cell.row),
                              model.Column(cell.column).heading.simplified(), *refusal);
      return plan;
    }
    if (model.Edited(cell.column, cell.text) != shown) plan.cells.push_back(std::move(cell));
  }
  return plan;
}

}  // namespace GUI
