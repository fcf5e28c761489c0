// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/calc/spectral_curve.h"
#include "host/data/s_filter_spec.h"

namespace color_wheel {

/// A filter's transmission from 300 to 850 nm in steps of 1 nm.
///
/// T(w) = PeakTransmission x short edge x long edge. The short edge is half way up at Sw50, the
/// long edge half way down at Lw50; each goes between 10 and 90 % within its factor times 100 nm,
/// so a factor of 0 is a vertical edge.
[[nodiscard]] spectral_curve::Curve FilterCurve(const SFilterSpec& filter);

}  // namespace color_wheel
