// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QLineEdit;
class QPushButton;

namespace VeskSystemDefinition {

/// Asks for the title of a new waveform. It refuses the titles that are taken and those that no
/// waveform may have.
class NewWaveformDlg : public QDialog {
  Q_OBJECT

 public:
  explicit NewWaveformDlg(std::vector<std::string> taken, QWidget* parent = nullptr);

  /// Exactly as entered.
  [[nodiscard]] std::string Title() const;

  void accept() override;

 private:
  std::vector<std::string> taken_;
  QLineEdit* title_ = nullptr;
};

}  // namespace VeskSystemDefinition
