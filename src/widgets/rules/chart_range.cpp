// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/chart_range.h"

#include <algorithm>
#include <cmath>

namespace GUI {

void ChartRangeFit::Add(double value) {
  if (!std::isfinite(value) || (logarithmic_ && value <= 0.0)) return;
  lowest_ = std::min(lowest_, value);
  highest_ = std::max(highest_, value);
}

ChartRange ChartRangeFit::Result(double margin) const {
  if (lowest_ > highest_) return logarithmic_ ? ChartRange{1.0, 10.0} : ChartRange{0.0, 1.0};
  if (logarithmic_) {
    // A single value stands in the middle of a decade.
    const double ratio = highest_ / lowest_;
    const double widened = ratio > 1.0 ? std::pow(ratio, margin) : std::sqrt(10.0);
    return {lowest_ / widened, highest_ * widened};
  }
  const double width = highest_ - lowest_;
  const double single = lowest_ == 0.0 ? 1.0 : std::abs(lowest_);
  const double widened = width > 0.0 ? width * margin : single * 0.5;
  return {lowest_ - widened, highest_ + widened};
}

bool IsChartRange(const ChartRange& range, bool logarithmic) {
  return std::isfinite(range.lower) && std::isfinite(range.upper) && range.lower < range.upper &&
         (!logarithmic || range.lower > 0.0);
}

}  // namespace GUI
