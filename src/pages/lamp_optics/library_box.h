// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QPushButton;

namespace lamp_optics {

/// The controls of one library: the list whose text renames the current record, and its buttons.
class LibraryBox : public QObject {
  Q_OBJECT

 public:
  /// The controls belong to one window and outlive this.
  LibraryBox(QComboBox& list, QPushButton& load, QPushButton& remove);

  /// Shows the entries with that one current, -1 for none. A name that was typed is forgotten.
  void Show(const std::vector<std::string>& entries, int current, bool hasRoom);

  /// The text that was typed since the list was last shown; nothing when none was.
  [[nodiscard]] std::optional<std::string> TypedName() const;

 signals:
  void entryChosen(int entry);
  void typed();
  void left();
  void loadClicked();
  void removeClicked();

 private:
  void TakeOverEditing();

  QComboBox& list_;
  QPushButton& load_;
  QPushButton& remove_;
  bool typed_ = false;
};

}  // namespace lamp_optics
