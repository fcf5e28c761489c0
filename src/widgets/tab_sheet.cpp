// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/tab_sheet.h"

namespace GUI {

TabSheet::TabSheet(QWidget* parent) : QTabWidget(parent) {}

bool TabSheet::SetTabDisabled(int index, bool disabled) {
  if (index < 0 || index >= count() || IsTabDisabled(index) == disabled) return false;
  if (disabled && index == currentIndex()) {
    const int next = NextEnabledTab(index);
    if (next < 0) return false;
    setCurrentIndex(next);
  }
  setTabEnabled(index, !disabled);
  return true;
}

bool TabSheet::IsTabDisabled(int index) const { return !isTabEnabled(index); }

int TabSheet::NextEnabledTab(int index) const {
  for (int step = 1; step < count(); ++step) {
    const int candidate = (index + step) % count();
    if (isTabEnabled(candidate)) return candidate;
  }
  return -1;
}

}  // namespace GUI
