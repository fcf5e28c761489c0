// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <memory>
#include <string>

#include "pages/lamp_waveform/embedded_page.h"

class LampWaveform;
namespace Ui {
class AntiFlatterCompensationPage;
}
namespace lamp_waveform {
struct Entered;
}

namespace VeskSystemDefinition {

/// The sub-page of the compensation pulses of the selected waveform: anti-flatter pulses for one
/// ballast maker, S pulses for another. What is accepted is stored at once.
class CAntiFlatterCompensationPage : public QWidget, public IEmbeddedPage {
  Q_OBJECT

 public:
  /// The live tool of that name hears of changes.
  explicit CAntiFlatterCompensationPage(std::string toolName, QWidget* parent = nullptr);
  ~CAntiFlatterCompensationPage() override;

  void SetInputData(GUIInputsData* inputs) override { data_ = inputs; }
  void Refresh() override;
  /// Takes what is being typed into a field that was not left yet, as leaving it does: a refused
  /// text is told and the stored value shown again.
  void TakeEdits();

 private:
  void SetUpGrid();
  void Connect();
  /// The selected waveform's; null when there is none.
  [[nodiscard]] LampWaveform* Attributes() const;

  void ShowMode();
  void FillSpokes(LampWaveform& attributes);
  void ClearFields();
  void SetFieldsEnabled(bool enabled);

  void Enable(bool enabled);
  void TakeRatio();
  void TakeLength();
  void TakeSpoke(int row, bool applied);
  void Finish(const lamp_waveform::Entered& entered) const;
  void MarkModified() const;

  std::unique_ptr<Ui::AntiFlatterCompensationPage> ui_;
  std::string toolName_;
  GUIInputsData* data_ = nullptr;
};

}  // namespace VeskSystemDefinition
