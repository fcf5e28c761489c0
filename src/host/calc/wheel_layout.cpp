// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/wheel_layout.h"

#include <algorithm>
#include <cmath>

namespace wheel_layout {
namespace {

constexpr double kTurn = 360.0;
/// Sizes that add up to a full turn on paper may miss it by rounding; nobody can see so small a
/// gap.
constexpr double kRoundingDegrees = 1e-9;

double AboveRounding(double degrees) { return degrees > kRoundingDegrees ? degrees : 0.0; }

std::vector<std::size_t> SegmentsWithPlace(std::span<const CWSeg> wheel) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < wheel.size(); ++i) {
    if (wheel[i].hasPlace()) places.push_back(i);
  }
  return places;
}

}  // namespace

double Layout::GapDegrees() const noexcept { return AboveRounding(kTurn - totalDegrees); }

double Layout::OverflowDegrees() const noexcept { return AboveRounding(totalDegrees - kTurn); }

Layout LayOut(std::span<const CWSeg> wheel, double spokeSizeDegrees) {
  Layout layout;
  const std::vector<std::size_t> places = SegmentsWithPlace(wheel);
  const double half = spokeSizeDegrees > 0 ? spokeSizeDegrees / 2 : 0.0;
  const auto hasSpoke = [&](std::size_t a, std::size_t b) {
    return half > 0 && wheel[a].getColor() != wheel[b].getColor();
  };
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::size_t before = places[(i + places.size() - 1) % places.size()];
    const std::size_t here = places[i];
    const std::size_t after = places[(i + 1) % places.size()];
    const double begin = layout.totalDegrees + (hasSpoke(before, here) ? half : 0.0);
    layout.totalDegrees += wheel[here].getSize();
    const bool spoke = hasSpoke(here, after);
    const double end = layout.totalDegrees - (spoke ? half : 0.0);
    layout.parts.push_back({wheel[here].getName(), here, here, begin, std::max(0.0, end - begin)});
    if (spoke) {
      layout.parts.push_back(
          {wheel[here].getName() + wheel[after].getName(), here, after, end, spokeSizeDegrees});
    }
  }
  return layout;
}

std::optional<std::size_t> SegmentAt(std::span<const CWSeg> wheel, double degrees) {
  const double angle = degrees - kTurn * std::floor(degrees / kTurn);
  double end = 0;
  for (std::size_t i = 0; i < wheel.size(); ++i) {
    if (!wheel[i].hasPlace()) continue;
    end += wheel[i].getSize();
    if (angle < end) return i;
  }
  return std::nullopt;
}

}  // namespace wheel_layout
