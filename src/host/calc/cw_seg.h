// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <string>
#include <vector>

#include "host/data/s_seg_geom.h"

/// One segment of a color wheel as the sequence calculations see it.
class CWSeg {
 public:
  CWSeg(int color, double sizeDegrees) noexcept : color_(color), size_(sizeDegrees) {}

  /// The color's one-letter code; empty for a color that has none.
  [[nodiscard]] std::string getName() const;
  [[nodiscard]] int getColor() const noexcept { return color_; }
  [[nodiscard]] double getSize() const noexcept { return size_; }
  /// Whether light of the segment is used: its color is counted and its size is above 0.
  [[nodiscard]] bool hasPlace() const noexcept;

 private:
  int color_;
  double size_;
};

/// A wheel's segments, in wheel order, as the calculations take them.
[[nodiscard]] std::vector<CWSeg> CWSegsOf(std::span<const SSegGeom> segments);
