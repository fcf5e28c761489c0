// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/lamp_optics_page.h"

#include <QScopedValueRollback>
#include <QTimer>

#include "framework/tool_name.h"
#include "host/data/lamp_optics_data.h"
#include "host/gui/file_dialog_ex.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/gui/number_box.h"
#include "host/gui/tool.h"
#include "host/project/ost_project.h"
#include "pages/lamp_optics/library_box.h"
#include "pages/lamp_optics/rules/lamp_optics_check.h"
#include "pages/lamp_optics/rules/library.h"
#include "pages/lamp_optics/rules/load_report.h"
#include "pages/lamp_optics/rules/spectrum_files.h"
#include "pages/lamp_optics/simple_optics_model.h"
#include "ui_lamp_optics_page.h"
#include "widgets/when_left.h"

using lamp_optics::LibraryBox;

namespace {

constexpr int kDialogId = 18440;
constexpr Framework::NumberFormat kLumens{1, {0.0, lamp_optics::kMaxTotalLumens}};
constexpr Framework::NumberFormat kContrast{1,
                                            {lamp_optics::kMinContrast, lamp_optics::kMaxContrast}};

/// A box whose value belongs to a record is empty without one.
void ShowIf(bool hasRecord, QLineEdit& box, double value, const Framework::NumberFormat& format) {
  box.setEnabled(hasRecord);
  if (hasRecord) {
    Framework::ShowNumber(box, value, format);
  } else {
    Framework::ShowText(box, {});
  }
}

SLampRecord* CurrentRecord(LampData& lamps) {
  return lamp_optics::CurrentLamp(lamps) ? &lamps.Lamps[static_cast<std::size_t>(lamps.CurrentLamp)]
                                         : nullptr;
}

}  // namespace

const SysDefLampOpticsPage::FileKind SysDefLampOpticsPage::kLampFiles{
    "Lamp File (*.lmp)|*.lmp|All Files (*.*)|*.*||", "*.lmp", "Lamps"};
const SysDefLampOpticsPage::FileKind SysDefLampOpticsPage::kOpticsFiles{
    "Optics Files (*.opt)|*.opt|All Files (*.*)|*.*||", "*.opt", "Optics"};
const SysDefLampOpticsPage::FileKind SysDefLampOpticsPage::kRecyclingFiles{
    "Lamp Recycling File (*.flt)|*.flt|All Files (*.*)|*.*||", "*.flt", "Lamps"};

SysDefLampOpticsPage::SysDefLampOpticsPage()
    : ToolPropertyPage(VeskSystemDefinition::kToolName, kDialogId, 0) {
  SetTitle(QStringLiteral("Lamp Optics"));
}

SysDefLampOpticsPage::~SysDefLampOpticsPage() = default;

void SysDefLampOpticsPage::CreateControls(QWidget* window) {
  ui_ = std::make_unique<Ui::LampOpticsPage>();
  ui_->setupUi(window);
  // Kept for the data's sake; the page does not offer them.
  ui_->enableRecycling->hide();
  ui_->loadRecycling->hide();
  lamps_ = new LibraryBox(*ui_->lampName, *ui_->loadLamp, *ui_->removeLamp);
  optics_ = new LibraryBox(*ui_->opticsName, *ui_->loadOptics, *ui_->removeOptics);
  lampChart_ = lamp_optics::LampChart(*ui_->lampChart);
  opticsChart_ = lamp_optics::OpticsChart(*ui_->opticsChart);
  ConnectLibraries();
  ConnectValues();
}

void SysDefLampOpticsPage::ConnectLibraries() {
  const auto on = [this](LibraryBox* library, auto signal, auto run) {
    QObject::connect(library, signal, library, [this, run](auto... values) {
      if (data_) run(values...);
    });
  };
  on(lamps_, &LibraryBox::loadClicked, [this] { LoadLamp(); });
  on(lamps_, &LibraryBox::removeClicked, [this] {
    if (lamp_optics::RemoveCurrent(data_->Lamp)) Changed();
  });
  on(lamps_, &LibraryBox::entryChosen, [this](int entry) { ChooseLamp(entry); });
  on(lamps_, &LibraryBox::left, [this] { RenameLamp(lamps_->TypedName()); });
  on(optics_, &LibraryBox::loadClicked, [this] { LoadOptics(); });
  on(optics_, &LibraryBox::removeClicked, [this] {
    if (lamp_optics::RemoveCurrent(data_->Optics)) Changed();
  });
  on(optics_, &LibraryBox::entryChosen, [this](int entry) { ChooseOptics(entry); });
  on(optics_, &LibraryBox::typed, [this] { OpticsTyped(); });
  on(optics_, &LibraryBox::left, [this] { RenameOptics(optics_->TypedName()); });
}

void SysDefLampOpticsPage::ConnectValues() {
  for (QLineEdit* box : {ui_->totalLumens, ui_->contrast}) {
    GUI::WhenLeftForAnother(*box, [this] { ValueLeft(); });
    QObject::connect(box, &QLineEdit::returnPressed, box, [this] { ValueLeft(); });
  }
  QObject::connect(ui_->editModel, &QPushButton::clicked, ui_->editModel, [this] { EditModel(); });
  QObject::connect(ui_->enableRecycling, &QCheckBox::clicked, ui_->enableRecycling,
                   [this](bool enable) { EnableRecycling(enable); });
  QObject::connect(ui_->loadRecycling, &QPushButton::clicked, ui_->loadRecycling,
                   [this] { LoadRecycling(); });
}

void SysDefLampOpticsPage::InitDialog() {
  if (ui_) ui_->report->clear();
  ToolPropertyPage::InitDialog();
}

int SysDefLampOpticsPage::UpdateData(int save) {
  if (!data_) return 1;
  if (!save) {
    Show();
    return 1;
  }
  const QScopedValueRollback<bool> rollback(taking_, true);
  if (!TakeValues()) return 0;
  // A renaming shows the page again.
  const auto opticsName = optics_->TypedName();
  return RenameLamp(lamps_->TypedName()) && RenameOptics(opticsName) ? 1 : 0;
}

int SysDefLampOpticsPage::OnKillActive() {
  // A click on another page leaves the box first.
  if (justRefused_) return 0;
  return UpdateData(1) && UpdateData(0) ? 1 : 0;
}

// Data to controls.

void SysDefLampOpticsPage::Show() {
  ShowLibraries();
  ShowValues();
  ShowRecycling();
  lampChart_.Draw(lamp_optics::LampCurves(*data_));
  opticsChart_.Draw(lamp_optics::OpticsCurves(data_->Optics, data_->Optics.Model));
}

void SysDefLampOpticsPage::ShowLibraries() {
  lamps_->Show(lamp_optics::ListEntries(data_->Lamp), lamp_optics::CurrentEntry(data_->Lamp),
               lamp_optics::HasRoom(data_->Lamp));
  optics_->Show(lamp_optics::ListEntries(data_->Optics), lamp_optics::CurrentEntry(data_->Optics),
                lamp_optics::HasRoom(data_->Optics));
}

void SysDefLampOpticsPage::ShowValues() {
  const SLampRecord* lamp = lamp_optics::CurrentLamp(data_->Lamp);
  ShowIf(lamp != nullptr, *ui_->totalLumens, lamp ? lamp->TotalLumens : 0.0, kLumens);
  ShowIf(lamp_optics::CurrentOptics(data_->Optics) != nullptr, *ui_->contrast,
         data_->Optics.FullOnContrastRatio, kContrast);
  ui_->indicator->setVisible(lamp && lamp->OpticsFlag != 0);
}

void SysDefLampOpticsPage::ShowRecycling() {
  const SLampRecord* lamp = lamp_optics::CurrentLamp(data_->Lamp);
  const bool isEnabled = lamp && lamp->RecyclingEnabled;
  ui_->enableRecycling->setEnabled(lamp != nullptr);
  ui_->enableRecycling->setChecked(isEnabled);
  ui_->loadRecycling->setEnabled(isEnabled);
}

void SysDefLampOpticsPage::Changed() {
  Modified();
  Show();
}

// Files.

std::optional<std::filesystem::path> SysDefLampOpticsPage::AskForFile(const FileKind& kind) const {
  CFileDialogEx dialog;
  dialog.title = "Load";
  dialog.filter = kind.filter;
  dialog.defaultExtension = kind.extension;
  if (const Framework::Tool* tool = GetTool(); tool && tool->GetProject()) {
    const std::filesystem::path folder = tool->GetProject()->Folder() / kind.folder;
    std::error_code error;
    if (std::filesystem::is_directory(folder, error)) dialog.startFolder = folder;
  }
  return dialog.Choose();
}

void SysDefLampOpticsPage::Report(const std::filesystem::path& file, bool accepted,
                                  const lamp_optics::LoadReport& report) {
  ui_->report->setPlainText(
      QString::fromStdString(lamp_optics::LoadText(file.filename().string(), accepted, report)));
}

void SysDefLampOpticsPage::LoadLamp() {
  const auto chosen = AskForFile(kLampFiles);
  if (!chosen) return;
  lamp_optics::LampFile file = lamp_optics::ReadLampFile(*chosen);
  Report(*chosen, file.Accepted(), file.report);
  if (file.Accepted() && lamp_optics::AddLamp(data_->Lamp, file.record)) Changed();
}

void SysDefLampOpticsPage::LoadOptics() {
  const auto chosen = AskForFile(kOpticsFiles);
  if (!chosen) return;
  lamp_optics::OpticsFile file = lamp_optics::ReadOpticsFile(*chosen);
  Report(*chosen, file.Accepted(), file.report);
  if (file.Accepted() && lamp_optics::AddOptics(data_->Optics, file.record)) Changed();
}

void SysDefLampOpticsPage::LoadRecycling() {
  SLampRecord* lamp = data_ ? CurrentRecord(data_->Lamp) : nullptr;
  const auto chosen = lamp ? AskForFile(kRecyclingFiles) : std::nullopt;
  if (!chosen) return;
  lamp_optics::RecyclingFile file = lamp_optics::ReadRecyclingFile(*chosen);
  Report(*chosen, file.Accepted(), file.report);
  if (lamp_optics::TakeRecycling(*lamp, std::move(file.points))) Modified();
}

void SysDefLampOpticsPage::EnableRecycling(bool enable) {
  SLampRecord* lamp = data_ ? CurrentRecord(data_->Lamp) : nullptr;
  if (lamp && lamp->RecyclingEnabled != enable) {
    lamp->RecyclingEnabled = enable;
    Modified();
  }
  ui_->loadRecycling->setEnabled(enable);
}

// Lists.

void SysDefLampOpticsPage::ChooseLamp(int entry) {
  const int place = lamp_optics::PlaceOfEntry(data_->Lamp, entry);
  if (place < 0 || place == data_->Lamp.CurrentLamp) return;
  data_->Lamp.CurrentLamp = place;
  Changed();
}

void SysDefLampOpticsPage::ChooseOptics(int entry) {
  const int place = lamp_optics::PlaceOfEntry(data_->Optics, entry);
  if (place < 0 || place == data_->Optics.CurrentOptics) return;
  data_->Optics.CurrentOptics = place;
  Changed();
}

/// With none current there is nothing to rename: the first one is chosen.
void SysDefLampOpticsPage::OpticsTyped() {
  if (lamp_optics::CurrentOptics(data_->Optics)) return;
  ShowLibraries();
  ChooseOptics(0);
}

bool SysDefLampOpticsPage::RenameLamp(const std::optional<std::string>& typed) {
  return !typed || TakeRenamed(lamp_optics::RenameCurrent(data_->Lamp, *typed));
}

bool SysDefLampOpticsPage::RenameOptics(const std::optional<std::string>& typed) {
  return !typed || TakeRenamed(lamp_optics::RenameCurrent(data_->Optics, *typed));
}

/// The lists show the names that are stored, whether that changed anything or not.
bool SysDefLampOpticsPage::TakeRenamed(const lamp_optics::Renamed& renamed) {
  if (renamed.changed) {
    Changed();
  } else {
    ShowLibraries();
  }
  if (renamed.refusal) ShowMessageBox(*renamed.refusal, {}, msgbox::kIconError);
  return !renamed.refusal;
}

// Values.

bool SysDefLampOpticsPage::TakeValues() {
  SLampRecord* lamp = CurrentRecord(data_->Lamp);
  double& contrast = data_->Optics.FullOnContrastRatio;
  const double lumens = lamp ? lamp->TotalLumens : 0.0;
  const auto takenContrast = Framework::TakeNumber(*ui_->contrast, contrast, kContrast);
  if (!takenContrast) return false;
  const auto takenLumens = Framework::TakeNumber(*ui_->totalLumens, lumens, kLumens);
  if (!takenLumens) return false;
  const bool changed = *takenContrast != contrast || *takenLumens != lumens;
  contrast = *takenContrast;
  if (lamp) lamp->TotalLumens = *takenLumens;
  if (changed) Modified();
  return true;
}

void SysDefLampOpticsPage::ValueLeft() {
  // A refused box takes the focus back from the other one, which is not left by the person.
  if (!data_ || taking_) return;
  const QScopedValueRollback<bool> rollback(taking_, true);
  justRefused_ = !TakeValues();
  if (!justRefused_) return Show();
  QTimer::singleShot(0, lamps_, [this] { justRefused_ = false; });
}

void SysDefLampOpticsPage::EditModel() {
  if (!data_) return;
  CSimpleOpticsModel dialog(data_->Optics, Window());
  if (RunModal(dialog) != QDialog::Accepted || dialog.Data().IsEquivalent(data_->Optics)) return;
  data_->Optics = dialog.Data();
  Changed();
}

Findings SysDefLampOpticsPage::CheckData(const LampOpticsData& data,
                                         const OstProject* /*project*/) {
  return lamp_optics::CheckLampOptics(data);
}
