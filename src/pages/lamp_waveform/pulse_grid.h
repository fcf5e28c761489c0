// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>

#include "model/pulse_info.h"
#include "widgets/dynamic_data_grid.h"

namespace lamp_waveform {

/// The table of a waveform's pulses: a row each, with a button that opens it. Without pulses one
/// cell says why there are none.
class PulseGrid {
 public:
  /// The grid is not owned.
  explicit PulseGrid(GUI::CDynamicDataGrid& grid);

  /// Durations stand in microseconds where the rate (Hz) is above 0.
  void Show(std::span<const PulseInfo> pulses, double referenceRateHz);
  [[nodiscard]] bool ShowsPulses() const noexcept { return showsPulses_; }

  void SelectRow(std::size_t row);
  /// The first selected row.
  [[nodiscard]] std::optional<std::size_t> SelectedRow() const;

 private:
  void ShowMessage();
  void SetUpColumns();
  void ShowRow(int row, const PulseInfo& pulse, double referenceRateHz);
  void Fit(std::size_t pulses);

  GUI::CDynamicDataGrid& grid_;
  bool showsPulses_ = false;
};

}  // namespace lamp_waveform
