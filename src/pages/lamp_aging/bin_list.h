// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QTableWidget>
#include <QTimer>
#include <cstddef>
#include <optional>
#include <span>

#include "pages/lamp_aging/rules/bin_table.h"

namespace lamp_aging {

/// The bins of a table, one a row. A row on which the pointer rests for 250 ms is selected.
class BinList : public QTableWidget {
  Q_OBJECT

 public:
  explicit BinList(QWidget* parent = nullptr);

  /// Each shows another table from its top; nothing is selected then.
  void ShowFeedback(const BinTable& table);
  void ShowNoFeedback(const BinTable& table);

  /// The bin number of the selected row.
  [[nodiscard]] std::optional<std::size_t> SelectedBin() const;
  /// Selects, focuses and scrolls to the bin's row; nothing when there is no such row.
  void SelectBin(std::size_t number);

 signals:
  void binSelectionChanged();

 protected:
  bool viewportEvent(QEvent* event) override;

 private:
  struct Column;
  [[nodiscard]] static std::span<const Column> FeedbackColumns();
  [[nodiscard]] int WidthOf(const Column& column) const;
  void ShowColumns(std::span<const Column> columns);
  template <class Rows>
  void ShowRows(const Rows& rows);
  void SelectHovered();

  QTimer hover_;
  QPoint pointer_;  ///< where it was last seen, in the viewport
};

}  // namespace lamp_aging
