// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/spectra.h"

#include <algorithm>
#include <utility>

namespace lamp_optics {
namespace {

using spectral_curve::Curve;
using spectral_curve::Point;

/// Reads a curve at wavelengths that rise from call to call and lie within the curve.
class Follower {
 public:
  explicit Follower(const Curve& curve) : curve_(curve) {}

  double At(double wavelength) {
    while (next_ < curve_.size() && curve_[next_].wavelength < wavelength) ++next_;
    const Point& right = curve_[next_];
    if (right.wavelength == wavelength) return right.value;
    const Point& left = curve_[next_ - 1];
    const double share = (wavelength - left.wavelength) / (right.wavelength - left.wavelength);
    return left.value + share * (right.value - left.value);
  }

 private:
  const Curve& curve_;
  std::size_t next_ = 0;
};

std::vector<double> CommonWavelengths(const Curve& a, const Curve& b) {
  const double low = std::max(a.front().wavelength, b.front().wavelength);
  const double high = std::min(a.back().wavelength, b.back().wavelength);
  std::vector<double> wavelengths;
  for (const Curve* curve : {&a, &b}) {
    const auto middle = static_cast<std::ptrdiff_t>(wavelengths.size());
    for (const Point& point : *curve) {
      if (point.wavelength >= low && point.wavelength <= high) {
        wavelengths.push_back(point.wavelength);
      }
    }
    std::inplace_merge(wavelengths.begin(), wavelengths.begin() + middle, wavelengths.end());
  }
  wavelengths.erase(std::unique(wavelengths.begin(), wavelengths.end()), wavelengths.end());
  return wavelengths;
}

}  // namespace

Curve CurveOf(std::span<const SpectralPoint> points) {
  Curve curve;
  curve.reserve(points.size());
  for (const SpectralPoint& point : points) {
    curve.push_back({static_cast<double>(point.Wavelength), point.Value});
  }
  std::ranges::stable_sort(curve, {}, &Point::wavelength);
  const auto doubled = [](const Point& a, const Point& b) { return a.wavelength == b.wavelength; };
  curve.erase(std::unique(curve.begin(), curve.end(), doubled), curve.end());
  return curve;
}

Curve Product(const Curve& a, const Curve& b) {
  Curve product;
  if (a.empty() || b.empty()) return product;
  Follower left(a);
  Follower right(b);
  for (const double wavelength : CommonWavelengths(a, b)) {
    product.push_back({wavelength, left.At(wavelength) * right.At(wavelength)});
  }
  return product;
}

Curve Thinned(const Curve& curve, std::size_t most) {
  if (curve.size() <= most) return curve;
  const std::size_t inner = curve.size() - 2, stretches = (most - 2) / 2;
  Curve thinned{curve.front()};
  for (std::size_t i = 0; i < stretches; ++i) {
    const auto at = [&](std::size_t stretch) {
      return curve.begin() + static_cast<std::ptrdiff_t>(1 + inner * stretch / stretches);
    };
    auto [low, high] = std::minmax_element(
        at(i), at(i + 1), [](const Point& a, const Point& b) { return a.value < b.value; });
    if (high < low) std::swap(low, high);
    thinned.push_back(*low);
    if (high != low) thinned.push_back(*high);
  }
  thinned.push_back(curve.back());
  return thinned;
}

}  // namespace lamp_optics
