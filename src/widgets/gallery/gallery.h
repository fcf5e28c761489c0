// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPalette>
#include <QWidget>

class checkedlist;
class QVBoxLayout;

namespace GUI {

class CDynamicDataGrid;
class LineChart;
class TabSheet;

/// Every widget of this folder with sample data, for looking and for tests.
class Gallery : public QWidget {
  Q_OBJECT

 public:
  explicit Gallery(QWidget* parent = nullptr);

  [[nodiscard]] TabSheet& Sheet() const { return *sheet_; }
  [[nodiscard]] CDynamicDataGrid& Grid() const { return *grid_; }
  [[nodiscard]] LineChart& Chart() const { return *chart_; }
  [[nodiscard]] checkedlist& List() const { return *list_; }

 private:
  [[nodiscard]] QWidget* MakeGridPage();
  [[nodiscard]] QWidget* MakeChartPage();
  [[nodiscard]] QWidget* MakeEntryPage();
  [[nodiscard]] QWidget* MakeImagePage();
  void FillGrid();

  TabSheet* sheet_ = nullptr;
  CDynamicDataGrid* grid_ = nullptr;
  LineChart* chart_ = nullptr;
  checkedlist* list_ = nullptr;
};

/// A dark palette, for desktops that have none.
[[nodiscard]] QPalette DarkPalette();

}  // namespace GUI
