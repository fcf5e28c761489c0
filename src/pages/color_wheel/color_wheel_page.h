// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <vector>

#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/color_wheel/segment_grid.h"
#include "widgets/row_operation.h"

class ColorWheelData;
class OstProject;
namespace Ui {
class ColorWheelPage;
}

namespace VeskSystemDefinition {

/// The device's color wheel: segments with their filters, spoke size and nominal frame rate. Edits
/// are stored in the data as soon as they end.
class SysDefColorWheelPage : public Framework::ToolPropertyPage {
 public:
  SysDefColorWheelPage();
  ~SysDefColorWheelPage() override;

  /// The object to edit; it stays the wrapper's.
  void SetData(ColorWheelData* data) noexcept { data_ = data; }
  void InitDialog() override;
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const ColorWheelData& data, const OstProject* project);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void BindButtons();
  void ConnectControls();
  void Show();
  void ShowSpokeSize();
  void ShowFrameRate();
  void TakeGrid();
  void TakeSpokeSize();
  void TakeFrameRate(const QString& entry);
  void UpdateTotal();
  void UpdateButtons();
  void UpdatePictures();
  void ShowSelection();
  void SelectSegment(int segment);
  void RunRowOperation(GUI::RowOperation operation);
  void AddRow();
  void CopyRows();
  void DeleteRows();
  void MoveRows(GUI::RowOperation operation);
  void EditDetails();

  ColorWheelData* data_ = nullptr;
  std::unique_ptr<Ui::ColorWheelPage> ui_;
  std::unique_ptr<color_wheel::SegmentGrid> rows_;
  std::vector<double> supportedRates_;  ///< Hz
  double defaultRate_ = 0;              ///< Hz
  bool initialised_ = false;
};

}  // namespace VeskSystemDefinition
