// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/advanced_values.h"

#include <algorithm>

#include "host/calc/color_code.h"
#include "host/text/leading_number.h"
#include "platform/text/number.h"

namespace color_wheel {
namespace {

constexpr double kMaxGain = 5.0;
constexpr double kMaxPwm = 1.0;

}  // namespace

AdvancedValue ValueOf(AdvancedGrid grid, AdvancedColumn column, bool useModeled) {
  const bool spoke = column == AdvancedColumn::kSpoke;
  if (grid == AdvancedGrid::kGains) {
    const auto gain = spoke ? &SSegGeom::SpokeGain : &SSegGeom::SegmentGain;
    return {gain, gain, kMaxGain};
  }
  const auto measured = spoke ? &SSegGeom::MeasuredSpokePwm : &SSegGeom::MeasuredSegmentPwm;
  const auto modeled = spoke ? &SSegGeom::ModeledSpokePwm : &SSegGeom::ModeledSegmentPwm;
  return {useModeled ? modeled : measured, measured, kMaxPwm};
}

std::size_t AdvancedRowCount(std::span<const SSegGeom> segments) {
  return static_cast<std::size_t>(std::ranges::find(segments, 0.0, &SSegGeom::Size) -
                                  segments.begin());
}

std::string AdvancedText(double value) { return platform::FixedText(value, 3); }

std::string AdvancedCell(const SSegGeom& segment, const AdvancedValue& value) {
  return color_code::IsCounted(segment.Color) ? AdvancedText(segment.*value.shown) : std::string();
}

TakenAdvancedValue TakeAdvancedValue(std::string_view text, const AdvancedValue& value,
                                     SSegGeom& segment) {
  if (text == AdvancedCell(segment, value)) return {};
  double& stored = segment.*value.stored;
  const std::optional<double> number = leading_number::EnteredNumber(text);
  if (!number) return {AdvancedText(stored), std::nullopt};
  if (*number < 0 || *number > value.high) {
    return {AdvancedText(stored), "This value should be in the range - " + AdvancedText(0) +
                                      " to " + AdvancedText(value.high)};
  }
  stored = *number;
  return {};
}

bool ApplyAdvanced(std::span<const SSegGeom> edited, bool useModeled, ColorWheelData& wheel) {
  const bool all = useModeled != wheel.UseModeledPwm;
  const std::size_t count = std::min(edited.size(), wheel.Segments.size());
  bool replaced = false;
  for (std::size_t i = 0; i < count; ++i) {
    if (!all && edited[i] == wheel.Segments[i]) continue;
    wheel.Segments[i] = edited[i];
    replaced = true;
  }
  if (replaced) wheel.UseModeledPwm = useModeled;
  return replaced;
}

}  // namespace color_wheel
