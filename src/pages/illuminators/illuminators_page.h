// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>

#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/illuminators/rules/illuminator_rows.h"

class OstProject;
class QWidget;

namespace illuminators {
class IlluminatorRow;
class TimingDiagram;
}  // namespace illuminators

/// The switching times of the device's illuminators. Every completed edit is in the data at once.
/// How many rows there are, and whether the Glowmatch note is shown, is settled when the page is
/// first shown.
class IlluminatorsPage : public Framework::ToolPropertyPage {
 public:
  IlluminatorsPage();

  /// The object to edit; it stays the wrapper's.
  void SetData(IlluminatorsPageData* data) noexcept { data_ = data; }
  void InitDialog() override;
  /// What is still being typed is taken; 0 when it is refused.
  int OnKillActive() override;
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const IlluminatorsPageData& data,
                                          const OstProject* project);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void ConnectRow(int row);
  void SetUpRows();
  void ShowIlluminators();
  void ShowTimes(int rows);
  void ShowTiming();
  [[nodiscard]] int Take();
  void Exchange();

  IlluminatorsPageData* data_ = nullptr;
  std::array<illuminators::IlluminatorRow*, illuminators::kRows> rows_{};
  illuminators::TimingDiagram* diagram_ = nullptr;
  QWidget* glowmatchNote_ = nullptr;
  int drawnRow_ = 0;  ///< whose illuminator the diagram shows
  bool initialised_ = false;
  bool taking_ = false;
  bool justRefused_ = false;  ///< within the event that a field is left by
};
