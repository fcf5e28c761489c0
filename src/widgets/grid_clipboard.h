// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QItemSelection>
#include <QString>
#include <optional>
#include <vector>

namespace GUI {

class DataGridModel;

/// The selected cells as tab-separated text: the rows and columns that have a selected cell, those
/// not selected empty.
[[nodiscard]] QString CopiedCells(const DataGridModel& model, const QItemSelection& selection);

/// What pasting a text into a selection would do.
struct PastePlan {
  struct Cell {
    int row = 0;
    int column = 0;
    QString text;
  };
  /// The cells that change.
  std::vector<Cell> cells;
  /// Why nothing may be pasted, and which cell is to blame.
  std::optional<QString> refusal;
};

/// A single text goes into every selected cell, a block to the right of and below the selection's
/// first cell.
[[nodiscard]] PastePlan PlanPaste(const DataGridModel& model, const QItemSelection& selection,
                                  const QString& text);

}  // namespace GUI
