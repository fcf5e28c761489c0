// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <limits>

namespace GUI {

struct ChartRange {
  double lower = 0.0;
  double upper = 1.0;
};

/// Finds the range of an axis that shows all values it was given.
class ChartRangeFit {
 public:
  /// On a logarithmic axis only values above 0 count.
  explicit ChartRangeFit(bool logarithmic) : logarithmic_(logarithmic) {}

  /// Values that are not finite do not count.
  void Add(double value);
  /// The range, wider by that share on either side; never empty.
  [[nodiscard]] ChartRange Result(double margin) const;

 private:
  bool logarithmic_;
  double lowest_ = std::numeric_limits<double>::infinity();
  double highest_ = -std::numeric_limits<double>::infinity();
};

/// Whether an axis can show the range.
[[nodiscard]] bool IsChartRange(const ChartRange& range, bool logarithmic);

}  // namespace GUI
