// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QHash>
#include <QObject>

class QTableView;

namespace GUI {

/// Keeps the columns of a table as wide together as the table is, in the proportion of the widths
/// that a person or the headings gave them; none narrower than its heading and sample text.
class GridColumnFit : public QObject {
  Q_OBJECT

 public:
  /// The table must outlive this object.
  explicit GridColumnFit(QTableView& table);

  void SetExpanding(bool expanding);
  void SetSample(int column, const QString& sample);
  /// Forgets the widths and samples of the columns.
  void Reset();
  void Fit();

 private:
  [[nodiscard]] int Minimum(int column) const;
  void TakeWidth(int column, int width);

  QTableView& table_;
  bool expanding_ = true;
  bool fitting_ = false;
  QHash<int, QString> samples_;
  QHash<int, int> chosenWidths_;
};

}  // namespace GUI
