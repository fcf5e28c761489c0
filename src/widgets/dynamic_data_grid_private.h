// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QTimer>
#include <map>

#include "widgets/data_grid_delegate.h"
#include "widgets/data_grid_model.h"
#include "widgets/dynamic_data_grid.h"
#include "widgets/grid_column_fit.h"
#include "widgets/grid_row_actions.h"

class QLabel;

namespace GUI {

/// What stands behind a CDynamicDataGrid; for its sources only.
struct CDynamicDataGrid::Private {
  explicit Private(CDynamicDataGrid& owner);

  /// Throws std::out_of_range where there is no such cell.
  void NeedCell(int row, int column) const;
  [[nodiscard]] unsigned NewId();
  /// Runs a change of the rows between its two signals.
  template <class Change>
  void ChangeRows(Change change);
  /// The copies of these rows, with ids and copy names; they enter the copy map.
  [[nodiscard]] std::vector<GridRow> CopiesOf(const RowBlocks& blocks);
  template <class Change>
  void ChangeLook(int row, int column, Change change);
  void Select(const RowBlocks& blocks);
  /// Without a signal.
  void SelectQuietly(const QItemSelection& selection);
  [[nodiscard]] bool Allows(RowOperation operation, const RowBlocks& blocks) const;
  void UpdateActions();
  void UpdateRowHeight();
  void RunOwn(RowOperation operation);

  CDynamicDataGrid& grid;
  DataGridModel model;
  DataGridDelegate delegate;
  GridRowActions rowActions;
  GridColumnFit columnFit;
  QTimer scrollLater;
  QAction* paste = nullptr;
  QLabel* corner = nullptr;
  /// From a copied row's id to the id of its source.
  std::map<unsigned, unsigned> copyMap;
  unsigned lastId = 0;
  /// Ids up to this one may be taken by ids that the owner gave.
  unsigned highestGivenId = 0;
  QStringList newRowValues;
  std::function<void(RowOperation)> handler;
  /// The selection changes on the way to another one.
  bool quiet = false;
  /// Rows have been added, and where they are on the screen is not to be found out yet.
  bool placesUnknown = false;
  bool editRefused = false;
};

template <class Change>
void CDynamicDataGrid::Private::ChangeRows(Change change) {
  emit grid.rowsAboutToBeChanged();
  change();
  UpdateActions();
  emit grid.rowsChanged();
}

}  // namespace GUI
