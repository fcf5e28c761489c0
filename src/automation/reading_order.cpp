// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/reading_order.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QSplitter>
#include <QWidget>
#include <algorithm>
#include <tuple>
#include <utility>

namespace automation {
namespace {

using Place = std::pair<int, int>;

Place PlaceOf(const QLayout& layout, int index) {
  if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) {
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return {row, column};
  }
  if (const auto* form = qobject_cast<const QFormLayout*>(&layout)) {
    int row = 0;
    QFormLayout::ItemRole role = QFormLayout::LabelRole;
    form->getItemPosition(index, &row, &role);
    return {row, static_cast<int>(role)};
  }
  return {index, 0};
}

void Append(const QLayout& layout, std::vector<QWidget*>& widgets) {
  std::vector<std::pair<Place, QLayoutItem*>> items;
  items.reserve(static_cast<std::size_t>(layout.count()));
  for (int i = 0; i < layout.count(); ++i) items.emplace_back(PlaceOf(layout, i), layout.itemAt(i));
  std::stable_sort(items.begin(), items.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& [place, item] : items) {
    if (item->widget() != nullptr) widgets.push_back(item->widget());
    if (item->layout() != nullptr) Append(*item->layout(), widgets);
  }
}

}  // namespace

std::vector<QWidget*> InReadingOrder(const QWidget& parent) {
  std::vector<QWidget*> widgets;
  if (const auto* splitter = qobject_cast<const QSplitter*>(&parent)) {
    for (int i = 0; i < splitter->count(); ++i) widgets.push_back(splitter->widget(i));
    return widgets;
  }
  if (parent.layout() != nullptr) Append(*parent.layout(), widgets);
  const auto placed = static_cast<std::ptrdiff_t>(widgets.size());
  for (QObject* child : parent.children()) {
    auto* widget = qobject_cast<QWidget*>(child);
    if (widget == nullptr || widget->isWindow()) continue;
    if (std::find(widgets.begin(), widgets.begin() + placed, widget) == widgets.begin() + placed)
      widgets.push_back(widget);
  }
  std::stable_sort(widgets.begin() + placed, widgets.end(), [](QWidget* a, QWidget* b) {
    return std::tuple(a->y(), a->x()) < std::tuple(b->y(), b->x());
  });
  return widgets;
}

}  // namespace automation
