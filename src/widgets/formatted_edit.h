// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QLineEdit>

namespace GUI {

/// An entry field that drops keys that cannot belong to a number of its printf conversion. Pasted
/// text is taken as it is.
class CFormattedEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit CFormattedEdit(QWidget* parent = nullptr);
  explicit CFormattedEdit(char conversion, QWidget* parent = nullptr);

  /// A printf conversion letter: 'f' when not set.
  [[nodiscard]] char Conversion() const { return conversion_; }
  void SetConversion(char conversion) { conversion_ = conversion; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  bool RunEditCommand(const QKeyEvent& event);
  [[nodiscard]] bool Accepts(QChar character) const;

  char conversion_ = 'f';
};

}  // namespace GUI
