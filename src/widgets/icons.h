// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QIcon>

namespace GUI {

enum class Image {
  kAddRow,
  kCopyRows,
  kDeleteRows,
  kMoveToTop,
  kMoveUp,
  kMoveDown,
  kMoveToBottom,
  kNew,
  kDelete,
  kImport,
  kExport,
  kDropDown,
  kLens
};

/// The icon of an image button or a cell. Its colors are the palette's, with a disabled form, and
/// it is crisp at every size.
[[nodiscard]] QIcon Icon(Image image);

}  // namespace GUI
