// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QDialog>
#include <array>
#include <memory>

#include "host/data/optics_data.h"
#include "pages/lamp_optics/spectra_charts.h"

class QLineEdit;
namespace Ui {
class SimpleOpticsModel;
}

/// The dialog "Optics Model": the values of the parametric optics model, and its curve. It works on
/// a copy, which the page asks for after OK.
class CSimpleOpticsModel : public QDialog {
  Q_OBJECT

 public:
  explicit CSimpleOpticsModel(const OpticsData& optics, QWidget* parent = nullptr);
  ~CSimpleOpticsModel() override;

  [[nodiscard]] const OpticsData& Data() const noexcept { return data_; }

  void accept() override;

 private:
  void ConnectBox(std::size_t field);
  void Show();
  void Draw(const OpticsModel& model);
  /// The model as it would be with the texts at hand, where they can be taken.
  [[nodiscard]] OpticsModel Typed() const;
  bool Take(std::size_t field);
  void BoxLeft(std::size_t field);

  std::unique_ptr<Ui::SimpleOpticsModel> ui_;
  OpticsData data_;
  std::array<QLineEdit*, 8> boxes_{};  ///< in the order of the model's fields
  lamp_optics::SpectraChart chart_;
  bool taking_ = false;
};
