// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QDialog>
#include <cstdint>

class QLineEdit;

/// Asks for one bin. It checks only that its fields are numbers; the limits are signed 16-bit
/// integers.
class SlrPulseDataDlg : public QDialog {
  Q_OBJECT

 public:
  /// With limits that cannot be edited only the amplitude is asked for.
  SlrPulseDataDlg(std::int16_t lower, std::int16_t upper, double amplitude, bool limitsEditable,
                  QWidget* parent = nullptr);

  [[nodiscard]] std::int16_t Lower() const noexcept { return lower_; }
  [[nodiscard]] std::int16_t Upper() const noexcept { return upper_; }
  [[nodiscard]] double Amplitude() const noexcept { return amplitude_; }

  void accept() override;

 private:
  [[nodiscard]] bool Take();

  std::int16_t lower_;
  std::int16_t upper_;
  double amplitude_;
  QLineEdit* lowerBox_ = nullptr;
  QLineEdit* upperBox_ = nullptr;
  QLineEdit* amplitudeBox_ = nullptr;
};
