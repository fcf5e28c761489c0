// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>

class QLabel;
class QTableView;

namespace color_wheel {

/// A strip over a table with captions: one at its left edge and one centered over a run of
/// columns, which it follows when they change their width or scroll.
class ColumnCaption : public QWidget {
  Q_OBJECT

 public:
  explicit ColumnCaption(QWidget* parent = nullptr);

  /// The table belongs to the same window.
  void SetUp(QTableView& table, const QString& caption, int firstColumn, const QString& columns);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Place();

  QTableView* table_ = nullptr;
  int firstColumn_ = 0;
  QLabel* caption_;
  QLabel* columns_;
};

}  // namespace color_wheel
