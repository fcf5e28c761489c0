// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/lamp_optics/spectra_charts.h"

class LampOpticsData;
class OstProject;
namespace Ui {
class LampOpticsPage;
}
namespace lamp_optics {
class LibraryBox;
struct LoadReport;
struct Renamed;
}  // namespace lamp_optics

/// The device's small libraries of lamps and of optics descriptions, read from files, and the
/// parametric optics model. Every completed edit is in the data at once.
class SysDefLampOpticsPage : public Framework::ToolPropertyPage {
 public:
  SysDefLampOpticsPage();
  ~SysDefLampOpticsPage() override;

  /// The object to edit; it stays the wrapper's.
  void SetData(LampOpticsData* data) noexcept { data_ = data; }
  void InitDialog() override;
  /// What is still being typed is taken; 0 when it is refused.
  int OnKillActive() override;
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const LampOpticsData& data, const OstProject* project);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  /// What a file dialog is asked for.
  struct FileKind {
    const char* filter;
    const char* extension;
    const char* folder;  ///< below the project's
  };
  static const FileKind kLampFiles, kOpticsFiles, kRecyclingFiles;

  void ConnectLibraries();
  void ConnectValues();
  void Show();
  void ShowLibraries();
  void ShowValues();
  void ShowRecycling();
  void Changed();

  [[nodiscard]] std::optional<std::filesystem::path> AskForFile(const FileKind& kind) const;
  void Report(const std::filesystem::path& file, bool accepted,
              const lamp_optics::LoadReport& report);
  void LoadLamp();
  void LoadOptics();
  void LoadRecycling();
  void EnableRecycling(bool enable);
  void ChooseLamp(int entry);
  void ChooseOptics(int entry);
  void OpticsTyped();
  bool RenameLamp(const std::optional<std::string>& typed);
  bool RenameOptics(const std::optional<std::string>& typed);
  bool TakeRenamed(const lamp_optics::Renamed& renamed);
  bool TakeValues();
  void ValueLeft();
  void EditModel();

  LampOpticsData* data_ = nullptr;
  std::unique_ptr<Ui::LampOpticsPage> ui_;
  lamp_optics::LibraryBox* lamps_ = nullptr;
  lamp_optics::LibraryBox* optics_ = nullptr;
  lamp_optics::SpectraChart lampChart_;
  lamp_optics::SpectraChart opticsChart_;
  bool taking_ = false;
  bool justRefused_ = false;  ///< within the event that a box is left by
};
