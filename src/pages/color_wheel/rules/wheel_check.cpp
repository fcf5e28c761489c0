// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/wheel_check.h"

#include <algorithm>
#include <string>

#include "host/calc/color_code.h"
#include "host/calc/wheel_layout.h"
#include "host/project/finding_report.h"
#include "pages/color_wheel/rules/advanced_values.h"
#include "pages/color_wheel/rules/segment_row.h"
#include "pages/color_wheel/rules/wheel_sizes.h"
#include "platform/text/number.h"

namespace color_wheel {
namespace {

using platform::GeneralText;

constexpr const char* kGrid = "Segment Geometry";
/// What a total with two decimals shows; less is left over where a turn cannot be divided.
constexpr double kLeastGapDegrees = 0.005;

/// Segments are numbered as the rows of the grid are headed.
std::string NameOf(std::size_t index) { return "segment " + std::to_string(index); }

void CheckColor(const SSegGeom& segment, const std::string& name, std::string_view letters,
                FindingReport& report) {
  const int color = segment.Color;
  const std::string colorName(color_code::Name(color));
  if (color < color_code::kNone || color >= color_code::kCount) {
    report.Error("color-wheel.color", kGrid,
                 name + " has the number " + std::to_string(color) + ", which is no color");
  } else if (color == color_code::kNone) {
    report.Warning("color-wheel.no-color", kGrid, name + " has no color");
  } else if (!color_code::IsCounted(color)) {
    report.Warning("color-wheel.uncounted-color", kGrid,
                   name + " is " + colorName + ", which takes no place on the wheel");
  } else if (letters.find(color_code::Letter(color)) == std::string_view::npos) {
    report.Warning("color-wheel.unsupported-color", kGrid,
                   name + " is " + colorName + ", which the project's wheels do not support");
  }
}

void CheckSize(const SSegGeom& segment, const std::string& name, FindingReport& report) {
  if (!color_code::IsCounted(segment.Color)) return;
  if (report.Within(segment.Size, 0, kMaxSegmentDegrees, "color-wheel.size-range", kGrid,
                    "the size of " + name) &&
      segment.Size == 0) {
    report.Warning("color-wheel.empty-segment", kGrid, name + " has a size of 0 degrees");
  }
}

void CheckAdvanced(const SSegGeom& segment, const std::string& name, FindingReport& report) {
  for (const auto column : {AdvancedColumn::kSegment, AdvancedColumn::kSpoke}) {
    const std::string part = column == AdvancedColumn::kSpoke ? "spoke " : "segment ";
    const AdvancedValue gain = ValueOf(AdvancedGrid::kGains, column, false);
    report.Within(segment.*gain.shown, 0, gain.high, "color-wheel.gain-range", "Segment Gains",
                  "the " + part + "gain of " + name);
    for (const bool modeled : {false, true}) {
      const AdvancedValue pwm = ValueOf(AdvancedGrid::kPwm, column, modeled);
      report.Within(segment.*pwm.shown, 0, pwm.high, "color-wheel.pwm-range", "PWM Efficiences",
                    "the " + std::string(modeled ? "modeled " : "measured ") + part +
                        "efficiency of " + name);
    }
  }
}

/// A grid header on one line.
std::string OneLine(std::string header) {
  const std::size_t lineEnd = header.find("\r\n");
  if (lineEnd != std::string::npos) header.replace(lineEnd, 2, " ");
  return header;
}

void CheckFilter(const SFilterSpec& filter, const SSegGeom& segment, const std::string& name,
                 FindingReport& report) {
  for (const FilterColumn& column : FilterColumns()) {
    report.Within(filter.*column.member, column.low, column.high, "color-wheel.filter-range", kGrid,
                  OneLine(column.header) + " of " + name);
  }
  if (filter.Color != segment.Color) {
    report.Error("color-wheel.filter-color", kGrid, "the filter of " + name + " has another color");
  }
  if (filter.Sw50 > filter.Lw50) {
    report.Warning("color-wheel.filter-edges", kGrid,
                   "the filter of " + name + " passes nothing: SW 50% is above LW 50%");
  }
}

void CheckSegments(const ColorWheelData& wheel, std::string_view letters, FindingReport& report) {
  for (std::size_t i = 0; i < wheel.Segments.size(); ++i) {
    const SSegGeom& segment = wheel.Segments[i];
    CheckColor(segment, NameOf(i), letters, report);
    CheckSize(segment, NameOf(i), report);
    CheckAdvanced(segment, NameOf(i), report);
    if (i < wheel.FilterSpecs.size()) {
      CheckFilter(wheel.FilterSpecs[i], segment, NameOf(i), report);
    }
  }
  if (wheel.FilterSpecs.size() != wheel.Segments.size()) {
    report.Error("color-wheel.filter-count", kGrid,
                 std::to_string(wheel.FilterSpecs.size()) + " filters for " +
                     std::to_string(wheel.Segments.size()) + " segments");
  }
}

void CheckTotal(const ColorWheelData& wheel, FindingReport& report) {
  const wheel_layout::Layout layout =
      wheel_layout::LayOut(CWSegsOf(wheel.Segments), wheel.SpokeSize);
  const double total = CountedTotal(wheel.Segments);
  if (TotalFault(total)) {
    report.Error("color-wheel.total", "Total",
                 "the segments add up to " + TotalText(total) + " degrees");
  } else if (!wheel.Segments.empty() && layout.GapDegrees() >= kLeastGapDegrees) {
    report.Warning("color-wheel.gap", "Total",
                   "the segments leave " + GeneralText(layout.GapDegrees()) + " degrees open");
  }
  for (const wheel_layout::Part& part : layout.parts) {
    if (part.IsSpoke() || part.sweepDegrees > 0) continue;
    report.Warning("color-wheel.narrow-segment", kGrid,
                   NameOf(part.segment) + " is no wider than its spokes");
  }
}

void CheckSpoke(double size, FindingReport& report) {
  constexpr const char* kField = "Spoke Size";
  if (!(size <= kMaxSpokeDegrees)) {
    report.Error("color-wheel.spoke-range", kField,
                 "the spoke size is " + GeneralText(size) + ", more than 90");
  } else if (size < 0) {
    report.Warning("color-wheel.negative-spoke", kField,
                   "the spoke size is " + GeneralText(size) + ", so there are no spokes");
  }
}

void CheckFrameRate(double rate, std::span<const double> supported, FindingReport& report) {
  constexpr const char* kField = "Nominal Frame Rate";
  if (!(rate > 0)) {
    report.Error("color-wheel.frame-rate", kField,
                 "the nominal frame rate is " + GeneralText(rate));
  } else if (!supported.empty() && std::ranges::find(supported, rate) == supported.end()) {
    report.Warning(
        "color-wheel.unsupported-rate", kField,
        "the nominal frame rate " + GeneralText(rate) + " is none that the project supports");
  }
}

}  // namespace

Findings CheckWheel(const ColorWheelData& wheel, std::string_view supportedLetters,
                    std::span<const double> supportedRates) {
  FindingReport report;
  CheckSegments(wheel, supportedLetters, report);
  CheckTotal(wheel, report);
  CheckSpoke(wheel.SpokeSize, report);
  CheckFrameRate(wheel.NominalFrameRate, supportedRates, report);
  return report.Take();
}

}  // namespace color_wheel
