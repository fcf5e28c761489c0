// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QTreeWidget>

/// A list whose items are checked or not: column 0 is the item's text with its box, column 1 reads
/// "Yes" when the item is checked and "No" otherwise. Items count from 0.
class checkedlist : public QTreeWidget {
  Q_OBJECT

 public:
  explicit checkedlist(QWidget* parent = nullptr);

  [[nodiscard]] int ItemCount() const { return topLevelItemCount(); }
  /// Sets the text of an item; items up to it are made, unchecked.
  void SetItemText(int item, const QString& text);
  /// Sets the text of an item's column; "Yes" in column 1 checks the item, any other text
  /// unchecks it. Emits nothing.
  void SetItemText(int item, int column, const QString& text);
  /// Empty outside the items.
  [[nodiscard]] QString ItemText(int item, int column) const;
  /// An item that is disabled cannot be toggled.
  void EnableItem(int item, bool enabled);
  [[nodiscard]] bool ItemEnabled(int item) const;

  /// Room for five items.
  [[nodiscard]] QSize sizeHint() const override;

 signals:
  /// The person checked or unchecked an item; column 1 reads the new state.
  void checkChanged(int item);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QTreeWidgetItem& Item(int item);
  void TakeCheck(QTreeWidgetItem* item, int column);
};
