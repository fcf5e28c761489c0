// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/time_window.h"

#include <algorithm>
#include <cmath>

namespace lamp_waveform {
namespace {

constexpr double kLeastShare = 1e-4;

/// The smallest 1, 2 or 5 times a power of ten that is no less.
double RoundStep(double least) {
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (step * power >= least) return step * power;
  }
  return 10.0 * power;
}

}  // namespace

void TimeWindow::SetAll(double first, double last) {
  const bool all = ShowsAll();
  first_ = first;
  last_ = last;
  if (all) return ShowAll();
  Show(from_, Length());
}

void TimeWindow::ShowAll() noexcept {
  from_ = first_;
  to_ = last_;
}

void TimeWindow::Show(double from, double length) noexcept {
  const double all = last_ - first_;
  length = std::clamp(length, all * kLeastShare, all);
  from_ = std::clamp(from, first_, last_ - length);
  to_ = from_ + length;
}

void TimeWindow::Zoom(double us, double factor) noexcept {
  if (!(Length() > 0)) return;
  const double share = (us - from_) / Length();
  const double length = std::max(Length() * factor, (last_ - first_) * kLeastShare);
  Show(us - share * length, length);
}

void TimeWindow::Pan(double us) noexcept { Show(from_ + us, Length()); }

void TimeWindow::Reveal(double fromUs, double toUs) noexcept {
  if (toUs > to_) Pan(toUs - to_);
  if (fromUs < from_) Pan(fromUs - from_);
}

std::vector<double> TimeWindow::Ticks(int most) const {
  std::vector<double> ticks;
  if (!(Length() > 0) || most < 1) return ticks;
  const double step = RoundStep(Length() / most);
  const double first = std::ceil(from_ / step);
  for (int i = 0; i <= most && (first + i) * step <= to_; ++i) ticks.push_back((first + i) * step);
  return ticks;
}

}  // namespace lamp_waveform
