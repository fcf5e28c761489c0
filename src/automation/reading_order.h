// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <vector>

class QWidget;

namespace automation {

/// The child widgets in the order a person reads them: as the layout places them, row by row; what
/// no layout places comes after, from top to bottom.
[[nodiscard]] std::vector<QWidget*> InReadingOrder(const QWidget& parent);

}  // namespace automation
