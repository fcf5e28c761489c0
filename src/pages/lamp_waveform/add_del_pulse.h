// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QDialog>
#include <QPoint>
#include <memory>
#include <optional>

#include "pages/lamp_waveform/rules/pulse_dialog.h"

namespace Ui {
class AddDelPulse;
}

namespace VeskSystemDefinition {

/// Asks for a pulse, in percent and microseconds, and shows what it looks like. In dark-pulse mode
/// the amplitude keeps to the limits of dark pulses or to what lies above them.
class CAddDelPulse : public QDialog {
  Q_OBJECT

 public:
  /// The result code of "Delete Pulse", which is offered when editing.
  static constexpr int kDeleted = 1000;

  CAddDelPulse(const lamp_waveform::PulseDialogStart& start, const VIDarkPulseInfo& limits,
               bool editing, QWidget* parent = nullptr);
  ~CAddDelPulse() override;

  /// The values as they were last taken from the fields; a field that nobody edited keeps the value
  /// that it was opened with.
  [[nodiscard]] lamp_waveform::PulseValues Values() const noexcept { return values_; }

  void accept() override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void SetUpMode(bool editing);
  void SetUpPreview();
  void Connect();

  void Show();
  void DrawPreview();
  void SetDurationsEnabled(bool enabled);

  [[nodiscard]] bool TakeFields();
  [[nodiscard]] bool PassesAmplitude();
  void ChooseDark(bool dark);
  void UpdateWaveform();
  void DeletePulse();

  std::unique_ptr<Ui::AddDelPulse> ui_;
  lamp_waveform::PulseValues values_;
  VIDarkPulseInfo limits_;
  bool darkPulseMode_;
  std::optional<QPoint> grip_;  ///< where the dialog is held while it is dragged
};

}  // namespace VeskSystemDefinition
