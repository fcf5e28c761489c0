// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/tab_sheet.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

namespace automation {

QTabBar* FindTabBar(QWidget& root) {
  if (auto* bar = qobject_cast<QTabBar*>(&root)) return bar;
  if (const auto* sheet = qobject_cast<QTabWidget*>(&root)) return sheet->tabBar();
  for (QObject* child : root.children()) {
    auto* inner = qobject_cast<QWidget*>(child);
    if (inner == nullptr || inner->isWindow()) continue;
    if (QTabBar* bar = FindTabBar(*inner)) return bar;
  }
  return nullptr;
}

std::vector<int> ShownTabs(const QTabBar& bar) {
  std::vector<int> tabs;
  for (int tab = 0; tab < bar.count(); ++tab)
    if (bar.isTabVisible(tab)) tabs.push_back(tab);
  return tabs;
}

QWidget* CurrentTabPage(const QTabBar& bar) {
  const QWidget* parent = bar.parentWidget();
  if (parent == nullptr) return nullptr;
  if (const auto* sheet = qobject_cast<const QTabWidget*>(parent)) return sheet->currentWidget();
  const auto* stack = parent->findChild<QStackedWidget*>();
  return stack ? stack->currentWidget() : nullptr;
}

}  // namespace automation
