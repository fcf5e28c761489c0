// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <vector>

class QTabBar;
class QWidget;

namespace automation {

/// The first tab bar of a form that is not inside another sheet's tab; null without one.
[[nodiscard]] QTabBar* FindTabBar(QWidget& root);
/// The tabs a person sees, as indexes of the bar.
[[nodiscard]] std::vector<int> ShownTabs(const QTabBar& bar);
/// What the bar's current tab shows: the page of its sheet, or of the stack beside a bar that
/// stands alone; null when it has neither.
[[nodiscard]] QWidget* CurrentTabPage(const QTabBar& bar);

}  // namespace automation
