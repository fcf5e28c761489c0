// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <vector>

namespace lamp_waveform {

/// Which part of a time axis is visible; times in microseconds.
class TimeWindow {
 public:
  /// Everything there is. A window that showed all goes on to do so; another one stays as far as
  /// it fits.
  void SetAll(double first, double last);

  [[nodiscard]] double From() const noexcept { return from_; }
  [[nodiscard]] double To() const noexcept { return to_; }
  [[nodiscard]] double Length() const noexcept { return to_ - from_; }
  [[nodiscard]] bool ShowsAll() const noexcept { return from_ <= first_ && to_ >= last_; }

  void ShowAll() noexcept;
  /// `us` keeps its place; a factor below 1 shows less, down to a ten-thousandth of all.
  void Zoom(double us, double factor) noexcept;
  /// Moves by that much, as far as there is something to show.
  void Pan(double us) noexcept;
  /// Moves as little as shows the span, or its begin where the window is too short.
  void Reveal(double fromUs, double toUs) noexcept;

  /// Round values that divide the window into at most `most` stretches.
  [[nodiscard]] std::vector<double> Ticks(int most) const;

 private:
  void Show(double from, double length) noexcept;

  double first_ = 0;
  double last_ = 0;
  double from_ = 0;
  double to_ = 0;
};

}  // namespace lamp_waveform
