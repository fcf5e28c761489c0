// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

class QWidget;

namespace automation {

/// What a page's window shows, as text for people: the title, then its controls in reading order
/// as lines of name and value, its tables, and every enabled tab as a section of its own. Hidden
/// controls and plain buttons are left out. The window need not be on the screen; its current tab
/// is the same afterwards. UTF-8, with a line end at the end; the same window gives the same text.
[[nodiscard]] std::string TextTables(QWidget& window);

}  // namespace automation
