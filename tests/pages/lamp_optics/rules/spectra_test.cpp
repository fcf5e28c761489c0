// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/spectra.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "pages/lamp_optics/rules/model_curve.h"

namespace {

using lamp_optics::CurveOf;
using lamp_optics::ModelCurve;
using lamp_optics::Product;

TEST(Spectra, AFileInAnyOrderIsACurve) {
  const SpectralPoint points[] = {{500, 0.5}, {400, 0.25}, {500, 0.75}, {450, 1}};
  const auto curve = CurveOf(points);
  ASSERT_EQ(curve.size(), 3u);
  EXPECT_EQ(curve[0].wavelength, 400);
  EXPECT_EQ(curve[1].value, 1);
  EXPECT_EQ(curve[2].value, 0.5);
}

TEST(Spectra, TheProductHasThePointsOfBothWithinBoth) {
  const spectral_curve::Curve lamp{{400, 1}, {500, 3}, {600, 1}};
  const spectral_curve::Curve optics{{450, 0.5}, {500, 0.5}, {550, 1}, {700, 1}};
  const auto product = Product(lamp, optics);
  const double expected[][2] = {{450, 1}, {500, 1.5}, {550, 2}, {600, 1}};
  ASSERT_EQ(product.size(), std::size(expected));
  for (std::size_t i = 0; i < product.size(); ++i) {
    EXPECT_EQ(product[i].wavelength, expected[i][0]);
    EXPECT_DOUBLE_EQ(product[i].value, expected[i][1]);
  }
  EXPECT_EQ(Product(optics, lamp).size(), product.size());
  EXPECT_TRUE(Product(lamp, {}).empty());
  EXPECT_TRUE(Product(lamp, {{700, 1}, {800, 1}}).empty());
}

TEST(Spectra, ThinningKeepsEndsAndExtremes) {
  spectral_curve::Curve curve;
  for (int i = 0; i < 10007; ++i) curve.push_back({400 + i * 0.01, i % 7 * 0.1});
  curve[5000].value = 9;
  curve[5001].value = -9;
  for (const std::size_t most : {4u, 5u, 500u, 10006u}) {
    const auto thinned = lamp_optics::Thinned(curve, most);
    EXPECT_LE(thinned.size(), most);
    EXPECT_GT(thinned.size(), most / 2);
    EXPECT_EQ(thinned.front().wavelength, 400);
    EXPECT_EQ(thinned.back().wavelength, curve.back().wavelength);
    const auto [low, high] = std::ranges::minmax(thinned, {}, &spectral_curve::Point::value);
    EXPECT_EQ(low.value, -9);
    EXPECT_EQ(high.value, 9);
    EXPECT_TRUE(std::ranges::is_sorted(thinned, {}, &spectral_curve::Point::wavelength));
  }
  EXPECT_EQ(lamp_optics::Thinned(curve, 10007).size(), 10007u);
}

double ModelAt(const OpticsModel& model, int nm) {
  return ModelCurve(model)[static_cast<std::size_t>(nm - 360)].value;
}

TEST(ModelCurve, EachValueShapesItsOwnPart) {
  OpticsModel model;
  model.Sw50Intersect = 430;
  model.Lw50Intersect = 680;
  model.PeakTransmission = 0.8;
  EXPECT_EQ(ModelCurve(model).size(), 491u);
  EXPECT_EQ(ModelAt(model, 429), 0);
  EXPECT_EQ(ModelAt(model, 430), 0.8);
  EXPECT_EQ(ModelAt(model, 681), 0);

  model.SwSlopeFactor = 0.4;
  EXPECT_NEAR(ModelAt(model, 430), 0.4, 1e-12);
  EXPECT_NEAR(ModelAt(model, 410), 0.08, 1e-12);
  model.SwSlopeFactor = 0;
  model.LwSlopeFactor = 0.2;
  EXPECT_NEAR(ModelAt(model, 690), 0.08, 1e-12);

  model.LwSlopeFactor = 0;
  model.Peaking = 0.5;
  model.PeakWavelength = 550;
  EXPECT_EQ(ModelAt(model, 550), 0.8);
  EXPECT_NEAR(ModelAt(model, 650), 0.8 * (0.5 + 0.5 * 0.60653066), 1e-8);

  model.Peaking = 0;
  model.BlueReduce = 0.5;
  EXPECT_NEAR(ModelAt(model, 440), 0.4, 1e-12);
  EXPECT_NEAR(ModelAt(model, 475), 0.6, 1e-12);
  EXPECT_NEAR(ModelAt(model, 500), 0.8, 1e-12);
  model.BlueReduce = -1;
  EXPECT_EQ(ModelAt(model, 440), 1);
}

}  // namespace
