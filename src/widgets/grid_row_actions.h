// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QAction>
#include <QList>
#include <QObject>
#include <array>
#include <functional>

#include "widgets/row_operation.h"

namespace GUI {

/// The actions of a grid's row operations: which are offered, and what runs when one is triggered.
class GridRowActions : public QObject {
  Q_OBJECT

 public:
  using Run = std::function<void(RowOperation)>;

  /// Adds the actions to the widget, whose focus their keys need.
  GridRowActions(QWidget& owner, Run run);

  [[nodiscard]] QAction* Action(RowOperation operation) const;
  void Offer(const QList<RowOperation>& operations);
  void SetEnabledByOwner(RowOperation operation, bool enabled);
  /// Whether the operation is offered and its owner has not taken it away.
  [[nodiscard]] bool IsOpen(RowOperation operation) const;

 private:
  struct Entry {
    QAction* action = nullptr;
    bool offered = true;
    bool enabledByOwner = true;
  };
  std::array<Entry, kRowOperations.size()> entries_;
};

}  // namespace GUI
