// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>

#include "host/calc/spectral_curve.h"
#include "host/data/spectral_point.h"

namespace lamp_optics {

/// The points as a curve of rising wavelength; of points of one wavelength the first stands.
[[nodiscard]] spectral_curve::Curve CurveOf(std::span<const SpectralPoint> points);

/// What comes of a light through optics: the product of both curves, joined by lines between their
/// points, at every wavelength of either that lies within both. Time linear in the points.
[[nodiscard]] spectral_curve::Curve Product(const spectral_curve::Curve& a,
                                            const spectral_curve::Curve& b);

/// The curve with at most `most` (at least 4) of its points: from each of equal stretches the
/// lowest and the highest, so that no peak is lost, and the curve's two ends.
[[nodiscard]] spectral_curve::Curve Thinned(const spectral_curve::Curve& curve, std::size_t most);

}  // namespace lamp_optics
