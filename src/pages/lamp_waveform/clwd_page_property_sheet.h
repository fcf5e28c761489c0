// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <vector>

#include "widgets/tab_sheet.h"

class GUIInputsData;

namespace VeskSystemDefinition {

class IEmbeddedPage;

/// The sheet of the lamp waveform page's sub-pages. A sub-page counts as opened from the first time
/// that its tab was chosen.
class CLWDPagePropertySheet : public GUI::TabSheet {
  Q_OBJECT

 public:
  explicit CLWDPagePropertySheet(QWidget* parent = nullptr);

  /// Adds a tab behind the others. `Page` is a widget and an IEmbeddedPage.
  template <class Page>
  void AddPage(Page* page, const QString& caption) {
    pages_.push_back({page, false});
    addTab(page, caption);
  }

  /// Hands the data to every sub-page, in tab order.
  void SetInputData(GUIInputsData* inputs);
  /// Refreshes the sub-pages that were opened.
  void RefreshPages();

 private:
  struct Entry {
    IEmbeddedPage* page;
    bool opened;
  };
  void Open(int tab);

  std::vector<Entry> pages_;
};

}  // namespace VeskSystemDefinition
