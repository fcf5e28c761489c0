// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>

#include "host/calc/spectral_curve.h"
#include "host/data/optics_model.h"

namespace lamp_optics {

/// One value of the optics model as its dialog shows it.
struct ModelField {
  const char* name;  ///< the control's accessible name
  double OpticsModel::*member;
  int decimals;
  double low;   ///< included
  double high;  ///< included
};
[[nodiscard]] const std::array<ModelField, 8>& ModelFields();

/// The model's transmission from 360 to 850 nm in steps of 1 nm. The product of
/// - the peak transmission;
/// - a short and a long edge, one half at their 50 % intersects, that go between 10 and 90 % within
///   their slope factor times 100 nm (0: a vertical edge);
/// - a bell around the peak wavelength, 1 - Peaking x (1 - exp(-((w - peak) / 100 nm)^2 / 2)), so
///   that a peaking of 0 is flat;
/// - the blue, 1 - BlueReduce up to 450 nm, rising in a line to 1 at 500 nm, so that a negative
///   value lets more blue through.
/// Where that is more than 1 the curve is 1: no passive optics makes light.
[[nodiscard]] spectral_curve::Curve ModelCurve(const OpticsModel& model);

}  // namespace lamp_optics
