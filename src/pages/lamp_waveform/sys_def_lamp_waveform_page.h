// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/lamp_waveform/clwd_page_property_sheet.h"

class ColorWheelData;
class GUIInputsData;
class OstProject;
class PCGroup;
namespace Ui {
class SysDefLampWaveformPage;
}

namespace VeskSystemDefinition {

class CAntiFlatterCompensationPage;

/// The lamp's drive waveforms by group type and spin factor: chooses, makes and deletes them and
/// sets what the ballast is told. The sub-pages of its sheet edit the chosen waveform. The
/// selection stands in the page's lists and is mirrored into the data by every refresh.
class SysDefLampWaveformPage : public Framework::ToolPropertyPage {
 public:
  SysDefLampWaveformPage();
  ~SysDefLampWaveformPage() override;

  /// The object to edit, also for the sub-pages; it stays the wrapper's.
  void SetData(GUIInputsData* data);
  /// The color wheel is edited on its own page. One that changed there since it was last looked at
  /// is taken, and the pulses follow it; a wheel that was imported here stays until then.
  [[nodiscard]] static std::vector<std::string> ForeignFragments() { return {"ColorWheel"}; }
  void TakeForeign(const GUIInputsData& foreign);
  /// Save stores the ballast settings; all else is in the data at once.
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const GUIInputsData& data, const OstProject* project);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  /// A group type and a spin factor that are selected.
  struct Pair {
    std::string group;
    double spin;
  };

  void MakeSheet();
  void SetUpButtons();
  void ConnectControls();

  [[nodiscard]] const PCGroup* ChosenGroup() const;
  [[nodiscard]] std::optional<Pair> ChosenPair() const;
  [[nodiscard]] bool HasWaveform() const;

  void Refresh();
  void ShowGroupTypes();
  void ShowSpinFactors();
  void ShowWaveforms();
  void StoreSelection();
  void ShowAttributes();
  void ShowMaker(int code);
  void EnableControls();

  [[nodiscard]] bool Store();
  void StoreAndRefresh();
  void NewWaveform();
  void DeleteWaveform();

  GUIInputsData* data_ = nullptr;
  std::unique_ptr<ColorWheelData> storedWheel_;  ///< the database's, when it was last looked at
  std::unique_ptr<Ui::SysDefLampWaveformPage> ui_;
  QPointer<CLWDPagePropertySheet> sheet_;
  CAntiFlatterCompensationPage* compensation_ = nullptr;
};

}  // namespace VeskSystemDefinition
