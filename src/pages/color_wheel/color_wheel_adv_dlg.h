// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "host/data/s_seg_geom.h"
#include "pages/color_wheel/rules/advanced_values.h"

namespace GUI {
class CDynamicDataGrid;
}
namespace Ui {
class ColorWheelAdvDlg;
}

namespace VeskSystemDefinition {

/// The dialog "Advanced": gains and PWM efficiencies of a wheel's segments. It works on a copy,
/// which the page asks for after OK.
class CColorWheelAdvDlg : public QDialog {
  Q_OBJECT

 public:
  CColorWheelAdvDlg(std::vector<SSegGeom> segments, bool useModeled, QWidget* parent = nullptr);
  ~CColorWheelAdvDlg() override;

  [[nodiscard]] const std::vector<SSegGeom>& Segments() const noexcept { return segments_; }
  [[nodiscard]] bool UseModeled() const noexcept { return useModeled_; }

  void accept() override;

 private:
  /// One of the two grids, with the texts its value cells were last filled with.
  struct ValueGrid {
    color_wheel::AdvancedGrid kind;
    GUI::CDynamicDataGrid* grid;
    std::vector<std::array<QString, 2>> shown;
  };

  void SetUp(ValueGrid& values, int decimals);
  void Show();
  void ShowGrid(ValueGrid& values);
  void ShowRow(ValueGrid& values, std::size_t segment, bool isFilled);
  void Take();
  void TakeCell(ValueGrid& values, std::size_t segment, color_wheel::AdvancedColumn column);
  void Choose(bool useModeled);

  std::unique_ptr<Ui::ColorWheelAdvDlg> ui_;
  std::vector<SSegGeom> segments_;
  bool useModeled_;
  ValueGrid pwm_;
  ValueGrid gains_;
  bool taking_ = false;
};

}  // namespace VeskSystemDefinition
