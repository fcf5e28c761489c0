// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <cstddef>
#include <memory>
#include <string>

#include "pages/lamp_waveform/embedded_page.h"

class PCGroup;
class PulseInfo;
namespace Ui {
class LampWaveFormPulsesPage;
}
namespace lamp_waveform {
class PulseGrid;
}

namespace VeskSystemDefinition {

/// The sub-page of the selected waveform's pulses: a row for each segment that can carry one, the
/// dialog that adds, changes and deletes it, and the waveform drawn below. Each edit is in the data
/// at once.
class CLampWaveFormPulsesPage : public QWidget, public IEmbeddedPage {
  Q_OBJECT

 public:
  /// The live tool of that name hears of changes.
  explicit CLampWaveFormPulsesPage(std::string toolName, QWidget* parent = nullptr);
  ~CLampWaveFormPulsesPage() override;

  void SetInputData(GUIInputsData* inputs) override { data_ = inputs; }
  /// Brings the pulses to the wheel, where that changed, and shows them.
  void Refresh() override;

 private:
  void Connect();
  void ShowPulses();
  void FollowSelection();

  void OpenPulse(std::size_t row);
  void AddPulse(std::size_t row, const PCGroup& group);
  void EditPulse(std::size_t row, const PCGroup& group);
  void Store(std::size_t row, const PulseInfo& pulse);
  /// The stored entry of a row; null when there is none.
  [[nodiscard]] PulseInfo* PulseAt(std::size_t row) const;
  void MarkModified() const;

  std::unique_ptr<Ui::LampWaveFormPulsesPage> ui_;
  std::unique_ptr<lamp_waveform::PulseGrid> grid_;
  std::string toolName_;
  GUIInputsData* data_ = nullptr;
};

}  // namespace VeskSystemDefinition
