// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <cstdint>

namespace GUI {

enum class CellKind : std::int32_t { kText, kNumber, kCheckBox, kDropDown, kPushButton };

/// One column of a CDynamicDataGrid.
struct GridColumn {
  /// Line ends in it break the heading's line.
  QString heading;
  /// A duplicated row gets a copy name here ("Copy of Red").
  bool uniqueCopies = false;
  CellKind kind = CellKind::kText;
  /// Number columns: decimal places, 0 for integers; then bounds, each used when its flag is set.
  std::int16_t decimals = 0;
  double minimum = -1.0;
  double maximum = -1.0;
  bool minimumSet = false;
  bool maximumSet = false;
  /// Number columns: an edit is neither checked nor formatted here. The text stays as typed until
  /// the owner, which hears of the edit, judges it and sets another one.
  bool asTyped = false;
};

}  // namespace GUI
