// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/library_box.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "widgets/focus_wheel.h"
#include "widgets/when_left.h"

namespace lamp_optics {

LibraryBox::LibraryBox(QComboBox& list, QPushButton& load, QPushButton& remove)
    : QObject(&list), list_(list), load_(load), remove_(remove) {
  GUI::TurnOnlyWithFocus(list_);
  TakeOverEditing();
  connect(&list_, &QComboBox::activated, this, [this](int entry) {
    // Its text is now the entry's, not what was typed.
    typed_ = false;
    emit entryChosen(entry);
  });
  connect(&load_, &QPushButton::clicked, this, [this] { emit loadClicked(); });
  connect(&remove_, &QPushButton::clicked, this, [this] { emit removeClicked(); });
}

/// The text is a name, not a search: what a combo box does of its own when its text is finished,
/// going to the entry of that text, would choose another record in place of renaming this one.
void LibraryBox::TakeOverEditing() {
  QLineEdit* text = list_.lineEdit();
  list_.setCompleter(nullptr);
  disconnect(text, &QLineEdit::editingFinished, &list_, nullptr);
  disconnect(text, &QLineEdit::returnPressed, &list_, nullptr);
  connect(text, &QLineEdit::textEdited, this, [this] {
    typed_ = true;
    emit typed();
  });
  connect(text, &QLineEdit::returnPressed, this, [this] { emit left(); });
  GUI::WhenLeftForAnother(list_, [this] { emit left(); });
}

void LibraryBox::Show(const std::vector<std::string>& entries, int current, bool hasRoom) {
  const QSignalBlocker blocker(list_);
  list_.clear();
  for (const std::string& entry : entries) list_.addItem(QString::fromStdString(entry));
  list_.setCurrentIndex(current);
  list_.setEditText(list_.itemText(current));
  // A long name shows its beginning, save where it is being typed.
  if (!list_.hasFocus()) list_.lineEdit()->setCursorPosition(0);
  typed_ = false;
  load_.setEnabled(hasRoom);
  remove_.setEnabled(!entries.empty());
}

std::optional<std::string> LibraryBox::TypedName() const {
  if (!typed_) return std::nullopt;
  return list_.currentText().toStdString();
}

}  // namespace lamp_optics
