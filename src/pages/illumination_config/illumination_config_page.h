// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/data/illumination_configuration_data.h"
#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/illumination_config/source_grid.h"
#include "pages/illumination_config/wheel_grid.h"
#include "widgets/row_operation.h"

class OstProject;
class QWidget;
namespace Ui {
class IlluminationConfigPage;
}

namespace VeskSystemDefinition {

/// The device's light sources and the wheels they shine through. The grids are what is edited; the
/// data are made of them when the page is applied.
class SysDefIllumConfigPage : public Framework::ToolPropertyPage {
 public:
  SysDefIllumConfigPage();
  ~SysDefIllumConfigPage() override;

  /// The object to edit; it stays the wrapper's.
  void SetData(IlluminationConfigurationData* data) noexcept { data_ = data; }
  /// Fills the grids the first time, and later when the data are others than those the grids were
  /// filled from or stored as.
  void InitDialog() override;
  int UpdateData(int save) override;
  void DropEdits() override { gridData_.reset(); }

  [[nodiscard]] static Findings CheckData(const IlluminationConfigurationData& data,
                                          const OstProject* project);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void SetUpButtons();
  void ConnectSources();
  void ConnectWheel();
  void Load();
  void Store();
  void RunSourceOperation(GUI::RowOperation operation);
  void RunWheelOperation(GUI::RowOperation operation);
  void SourceClicked(int row, int column);
  void ViaWheelToggled(int row);
  /// Makes that source's wheel the current one; 0 for none.
  void SelectSource(unsigned id);
  void ShowWheel();
  void EnableWheel(bool enable);
  void TakeWheel();
  void TakeSpokeSize(const QString& text);
  void UpdateTotal();
  void UpdatePicture();
  [[nodiscard]] illumination_config::WheelEditor* Current() { return sources_->Editor(current_); }

  IlluminationConfigurationData* data_ = nullptr;
  std::optional<IlluminationConfigurationData> gridData_;  ///< what the grids stand for
  std::unique_ptr<Ui::IlluminationConfigPage> ui_;
  std::unique_ptr<illumination_config::SourceGrid> sources_;
  std::unique_ptr<illumination_config::WheelGrid> wheel_;
  std::vector<QWidget*> wheelControls_;
  unsigned current_ = 0;  ///< row id of the source whose wheel is shown
};

}  // namespace VeskSystemDefinition
