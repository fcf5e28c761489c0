// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>

#include "widgets/rules/number_cell.h"

namespace GUI {

/// A number in a grid: its text is always in its own format, and an edit outside its bounds is
/// refused with a message. A value, not a widget.
class CGridFmtNumCell {
 public:
  explicit CGridFmtNumCell(const NumberCellFormat& format = {}, const QString& text = {});

  /// Takes the value of the text: its leading numeric part, or 0.
  void SetText(const QString& text);
  [[nodiscard]] const QString& Text() const { return text_; }
  [[nodiscard]] const NumberCellFormat& Format() const { return format_; }
  /// Sets format and bounds and re-applies the text.
  void SetFormat(const NumberCellFormat& format);

  /// Whether an edit may end with the text; shows why not.
  [[nodiscard]] bool ValidateEdit(const QString& text) const;

 private:
  NumberCellFormat format_;
  QString text_;
};

}  // namespace GUI
