// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/color_wheel_data.h"

/// The rules of the dialog that edits gains and PWM efficiencies.
namespace color_wheel {

inline constexpr const char* kRangeCaption = "Warning";

enum class AdvancedColumn { kSegment, kSpoke };
enum class AdvancedGrid { kGains, kPwm };

/// One value of the dialog's two grids: what it may be and where it is kept.
struct AdvancedValue {
  double SSegGeom::*shown;   ///< with modeled efficiencies in use, those
  double SSegGeom::*stored;  ///< edits go to the measured efficiencies, whichever are shown
  double high;               ///< from 0, bounds included
};
[[nodiscard]] AdvancedValue ValueOf(AdvancedGrid grid, AdvancedColumn column, bool useModeled);

/// How many segments the grids show: those before the first of size 0.
[[nodiscard]] std::size_t AdvancedRowCount(std::span<const SSegGeom> segments);
/// A value as a cell shows it.
[[nodiscard]] std::string AdvancedText(double value);
/// The text of a value's cell; empty in the row of a color that does not count.
[[nodiscard]] std::string AdvancedCell(const SSegGeom& segment, const AdvancedValue& value);

struct TakenAdvancedValue {
  std::optional<std::string> rewrite;  ///< the text the cell gets in place of a refused one
  std::optional<std::string> message;  ///< for a number out of range
};
/// Stores an edited cell's text. A text equal to the one that the cell was filled with is not
/// taken.
[[nodiscard]] TakenAdvancedValue TakeAdvancedValue(std::string_view text,
                                                   const AdvancedValue& value, SSegGeom& segment);

/// Takes over what the dialog was left with by OK: every segment that differs, or all of them when
/// the choice of efficiencies changed. True when a segment was replaced.
[[nodiscard]] bool ApplyAdvanced(std::span<const SSegGeom> edited, bool useModeled,
                                 ColorWheelData& wheel);

}  // namespace color_wheel
