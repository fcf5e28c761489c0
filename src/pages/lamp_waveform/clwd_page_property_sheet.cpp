// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/clwd_page_property_sheet.h"

#include "pages/lamp_waveform/embedded_page.h"

namespace VeskSystemDefinition {

CLWDPagePropertySheet::CLWDPagePropertySheet(QWidget* parent) : TabSheet(parent) {
  connect(this, &QTabWidget::currentChanged, this, &CLWDPagePropertySheet::Open);
}

void CLWDPagePropertySheet::SetInputData(GUIInputsData* inputs) {
  for (const Entry& entry : pages_) entry.page->SetInputData(inputs);
}

void CLWDPagePropertySheet::RefreshPages() {
  for (const Entry& entry : pages_) {
    if (entry.opened) entry.page->Refresh();
  }
}

void CLWDPagePropertySheet::Open(int tab) {
  if (tab < 0) return;
  Entry& entry = pages_[static_cast<std::size_t>(tab)];
  entry.opened = true;
  entry.page->Refresh();
}

}  // namespace VeskSystemDefinition
