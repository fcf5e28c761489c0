// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/filter_curve.h"

namespace color_wheel {
namespace {

constexpr int kFirstNm = 300;
constexpr int kLastNm = 850;
constexpr double kWidthNmPerFactor = 100.0;

}  // namespace

spectral_curve::Curve FilterCurve(const SFilterSpec& filter) {
  spectral_curve::Curve curve;
  curve.reserve(kLastNm - kFirstNm + 1);
  for (int nm = kFirstNm; nm <= kLastNm; ++nm) {
    const double rise =
        spectral_curve::RisingEdge(nm, filter.Sw50, filter.SwFactor * kWidthNmPerFactor);
    const double fall =
        spectral_curve::FallingEdge(nm, filter.Lw50, filter.LwFactor * kWidthNmPerFactor);
    curve.push_back({static_cast<double>(nm), filter.PeakTransmission * rise * fall});
  }
  return curve;
}

}  // namespace color_wheel
