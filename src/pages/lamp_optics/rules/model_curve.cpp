// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/model_curve.h"

#include <algorithm>
#include <cmath>

namespace lamp_optics {
namespace {

constexpr int kFirstNm = 360;
constexpr int kLastNm = 850;
constexpr double kWidthNmPerFactor = 100.0;
constexpr double kBellNm = 100.0;
constexpr double kBlueEndNm = 450.0;
constexpr double kBlueFadeNm = 50.0;

double Bell(const OpticsModel& model, double nm) {
  const double distance = (nm - model.PeakWavelength) / kBellNm;
  return 1.0 - model.Peaking * (1.0 - std::exp(-distance * distance / 2));
}

double Blue(const OpticsModel& model, double nm) {
  return 1.0 - model.BlueReduce * std::clamp(1.0 - (nm - kBlueEndNm) / kBlueFadeNm, 0.0, 1.0);
}

double Transmission(const OpticsModel& model, double nm) {
  const double rise =
      spectral_curve::RisingEdge(nm, model.Sw50Intersect, model.SwSlopeFactor * kWidthNmPerFactor);
  const double fall =
      spectral_curve::FallingEdge(nm, model.Lw50Intersect, model.LwSlopeFactor * kWidthNmPerFactor);
  return std::min(1.0, model.PeakTransmission * rise * fall * Bell(model, nm) * Blue(model, nm));
}

}  // namespace

const std::array<ModelField, 8>& ModelFields() {
  static constexpr std::array<ModelField, 8> fields{{
      {"Slope Factor SW", &OpticsModel::SwSlopeFactor, 3, 0, 1},
      {"Slope Factor LW", &OpticsModel::LwSlopeFactor, 3, 0, 1},
      {"50% Intersect SW", &OpticsModel::Sw50Intersect, 1, 360, 850},
      {"50% Intersect LW", &OpticsModel::Lw50Intersect, 1, 360, 850},
      {"Peak Transmission", &OpticsModel::PeakTransmission, 2, 0, 1},
      {"Blue Reduce", &OpticsModel::BlueReduce, 1, -1, 1},
      {"Peak Wavelength", &OpticsModel::PeakWavelength, 1, 360, 850},
      {"Peaking", &OpticsModel::Peaking, 3, 0, 1},
  }};
  return fields;
}

spectral_curve::Curve ModelCurve(const OpticsModel& model) {
  spectral_curve::Curve curve;
  curve.reserve(kLastNm - kFirstNm + 1);
  for (int nm = kFirstNm; nm <= kLastNm; ++nm) {
    curve.push_back({static_cast<double>(nm), Transmission(model, nm)});
  }
  return curve;
}

}  // namespace lamp_optics
