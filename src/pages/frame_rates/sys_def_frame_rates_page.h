// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <optional>
#include <string>
#include <vector>

#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/frame_rates/rules/display.h"
#include "pages/frame_rates/rules/rate_table.h"

class OstProject;
class QLabel;
class QLineEdit;
class checkedlist;

namespace GUI {
class CDynamicDataGrid;
}
namespace frame_rates {
class CoverageView;
struct BinSpan;
}  // namespace frame_rates

/// The sequence rates to build sequences for, and the source rates that follow from them. The data
/// follow every tick at once.
class SysDefFrameRatesPage : public Framework::ToolPropertyPage {
 public:
  SysDefFrameRatesPage();
  ~SysDefFrameRatesPage() override;

  /// The object to edit; it stays the wrapper's.
  void SetData(SysDefFrameRatesPageData* data) noexcept { data_ = data; }
  /// The choice is made to fit anew.
  void DropEdits() override { listInitialised_ = false; }
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const SysDefFrameRatesPageData& data,
                                          const OstProject* project);
  /// Why a typed source rate is served as it is.
  [[nodiscard]] static std::optional<std::string> Explain(const SysDefFrameRatesPageData& data,
                                                          const OstProject* project,
                                                          const std::string& rate);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void InitialiseList();
  void ShowSelection();
  void StoreSelection();
  void FillGrid();
  void ShowExplanation();

  void SelectRow();
  void PointAtRow(int row);
  void ClickBin(int bin);
  void PointAtBin(int bin);
  [[nodiscard]] int RowOfBin(int bin) const;
  [[nodiscard]] std::optional<frame_rates::BinSpan> BinsOfRow(int row) const;
  [[nodiscard]] int SelectedRow() const;
  void HighlightRow(int row);

  SysDefFrameRatesPageData* data_ = nullptr;
  bool listInitialised_ = false;
  std::vector<frame_rates::SequenceRange> ranges_;  ///< one an item
  frame_rates::RateTable table_;
  std::vector<frame_rates::DisplayRow> rows_;  ///< one a row of the grid
  int pinnedRow_ = -1;  ///< the row that is selected while no bar is pointed at

  checkedlist* list_ = nullptr;
  GUI::CDynamicDataGrid* grid_ = nullptr;
  frame_rates::CoverageView* coverage_ = nullptr;
  QLineEdit* whyBox_ = nullptr;
  QLabel* explanation_ = nullptr;
};
