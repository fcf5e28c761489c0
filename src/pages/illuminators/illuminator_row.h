// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QObject>
#include <array>
#include <optional>
#include <string>

#include "pages/illuminators/rules/illuminator_rows.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QWidget;

namespace illuminators {

/// One row of the page's table: the illuminator's name, in a fixed row as a text and else in the
/// list it is chosen from, and its three times.
class IlluminatorRow : public QObject {
  Q_OBJECT

 public:
  /// Makes the row's controls in that row of the grid below its heads; they belong to the window.
  IlluminatorRow(int row, QWidget& window, QGridLayout& grid);

  void SetToolTips();
  void Hide();

  /// Shows which illuminator is in the row and which ones may be, and enables the times.
  void ShowIlluminator(const IlluminatorsPageData& data);
  void ShowTimes(const IlluminatorsPageData& data);

  /// The list's text when another entry was chosen than the one that was shown.
  [[nodiscard]] std::optional<std::string> EditedChoice() const;
  /// The edited times. Nothing when one was refused: the person was told, and its field has the
  /// focus.
  [[nodiscard]] std::optional<TimeEdits> TakeTimes();

 signals:
  void illuminatorChosen();
  void timeLeft();
  /// The focus came into the row.
  void entered();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool IsFixed() const noexcept { return list_ == nullptr; }
  [[nodiscard]] QString FixedName() const;
  void MakeName(QWidget& window);
  void MakeList(QWidget& window);
  void MakeTimes(QWidget& window, QGridLayout& grid);
  void Fill(const std::vector<std::string>& entries);
  void Paint(QWidget& field, const std::string& name);
  void Describe(const QString& name);

  int row_;
  QLineEdit* name_ = nullptr;  ///< of a fixed row, else null
  QComboBox* list_ = nullptr;  ///< of the others
  QString shownEntry_;
  std::array<QLineEdit*, 3> times_{};
};

}  // namespace illuminators
