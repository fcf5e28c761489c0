// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/calc/cw_seg.h"

/// Segments and spokes of a wheel at their angles, as the sequence timeline times them and a
/// picture of the wheel shows them. Angle 0 is where the first segment with a place begins; a
/// spoke lies half on either side of the edge between its neighbours.
namespace wheel_layout {

struct Part {
  std::string name;           ///< a segment's letter; a spoke's two letters, in wheel order
  std::size_t segment = 0;    ///< place in the wheel's list: the segment, or the one before a spoke
  std::size_t neighbour = 0;  ///< the segment after a spoke; for a segment itself
  double startDegrees = 0;
  double sweepDegrees = 0;

  [[nodiscard]] bool IsSpoke() const noexcept { return name.size() > 1; }
};

struct Layout {
  /// In wheel order, each segment followed by its spoke where it has one.
  std::vector<Part> parts;
  /// Sum of the sizes of the segments that have a place.
  double totalDegrees = 0;

  /// What is missing to a full turn, or 0.
  [[nodiscard]] double GapDegrees() const noexcept;
  /// What is more than a full turn, or 0.
  [[nodiscard]] double OverflowDegrees() const noexcept;
};

/// Two neighbours of one color have no spoke between them, nor has a wheel whose spoke size is not
/// above 0; the last segment's neighbour is the first. What is left of a segment between its spokes
/// is never below 0, also where the spokes are wider than the segment.
[[nodiscard]] Layout LayOut(std::span<const CWSeg> wheel, double spokeSizeDegrees);

/// The segment whose undivided sector (spokes not taken off) holds the angle; the first one where
/// an overfull wheel has two. Nothing in the gap. The angle is taken modulo a full turn.
[[nodiscard]] std::optional<std::size_t> SegmentAt(std::span<const CWSeg> wheel, double degrees);

}  // namespace wheel_layout
