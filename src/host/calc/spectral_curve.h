// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <vector>

/// Shapes that modeled spectra are made of.
namespace spectral_curve {

struct Point {
  double wavelength;  ///< nm
  double value;
};
using Curve = std::vector<Point>;

/// The rise of a filter's short edge: a logistic curve that is one half at `halfNm` and climbs from
/// 10 to 90 % within `widthNm`. A width of 0 is a step that has its upper value at `halfNm`.
[[nodiscard]] double RisingEdge(double wavelength, double halfNm, double widthNm) noexcept;
/// The fall of a long edge, its mirror image.
[[nodiscard]] double FallingEdge(double wavelength, double halfNm, double widthNm) noexcept;

}  // namespace spectral_curve
