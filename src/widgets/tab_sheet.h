// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QTabWidget>

namespace GUI {

/// A tab widget whose tabs can be disabled: a disabled tab is drawn so and cannot be chosen.
class TabSheet : public QTabWidget {
  Q_OBJECT

 public:
  explicit TabSheet(QWidget* parent = nullptr);

  /// Disables or enables a tab and says whether that changed anything. Disabling the current tab
  /// first moves to the next enabled tab after it, from the last on to the first; where there is
  /// none other, the tab stays enabled.
  bool SetTabDisabled(int index, bool disabled);
  [[nodiscard]] bool IsTabDisabled(int index) const;

 private:
  [[nodiscard]] int NextEnabledTab(int index) const;
};

}  // namespace GUI
