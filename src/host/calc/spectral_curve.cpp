// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/spectral_curve.h"

#include <cmath>

namespace spectral_curve {
namespace {

/// A logistic curve goes from 10 to 90 % within 2 ln 9 of its scale.
const double kScalesPerWidth = 2 * std::log(9.0);

}  // namespace

double RisingEdge(double wavelength, double halfNm, double widthNm) noexcept {
  if (!(widthNm > 0)) return wavelength >= halfNm ? 1.0 : 0.0;
  return 1.0 / (1.0 + std::exp((halfNm - wavelength) * kScalesPerWidth / widthNm));
}

double FallingEdge(double wavelength, double halfNm, double widthNm) noexcept {
  return RisingEdge(-wavelength, -halfNm, widthNm);
}

}  // namespace spectral_curve
