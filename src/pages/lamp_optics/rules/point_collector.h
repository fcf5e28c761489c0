// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <vector>

#include "host/data/spectral_point.h"
#include "pages/lamp_optics/rules/load_report.h"

namespace lamp_optics {

/// Takes the points of a file in file order and notes what the report says of them.
class PointCollector {
 public:
  PointCollector(std::vector<SpectralPoint>& points, LoadReport& report) noexcept
      : points_(points), report_(report) {}

  /// One data line: a wavelength and a value, each by its leading number. A line without one of
  /// them is left out. Both are noted, as are wavelengths that do not rise.
  void TakeLine(const FileLine& line);

 private:
  void Add(std::size_t line, SpectralPoint point);
  void NoteOrder(std::size_t line, int wavelength);
  [[nodiscard]] bool SeenBefore(int wavelength);

  std::vector<SpectralPoint>& points_;
  LoadReport& report_;
  std::vector<bool> seen_;
};

}  // namespace lamp_optics
