// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/rules/configuration_check.h"

#include <algorithm>
#include <string>

#include "host/calc/color_code.h"
#include "host/project/finding_report.h"
#include "pages/illumination_config/rules/wheel_total.h"
#include "platform/text/number.h"

namespace illumination_config {
namespace {

constexpr const char* kSources = "Illumination Sources";
constexpr const char* kWheels = "Wheel Details";
/// The page takes any spoke size; a wheel has none outside of these.
constexpr double kLargestSpokeDegrees = 90.0;

bool IsUsed(const IllumCharacteristics& slot) {
  return slot.SlotMarker == IllumCharacteristics::kUsedSlot;
}

std::string BaseColorName(const IllumCharacteristics& slot) {
  const std::string_view name = IllumCharacteristics::GetStrForIllumType(slot.BaseColor);
  return name.empty() ? "number " + std::to_string(slot.BaseColor) : std::string(name);
}

auto SourcesOf(const IlluminationConfigurationData& data, const ColorWheelData& wheel) {
  return std::ranges::count_if(data.Sources, [&](const IllumCharacteristics& slot) {
    return IsUsed(slot) && slot.WheelNumber == wheel.WheelNumber;
  });
}

void CheckSource(const IllumCharacteristics& slot, const std::string& name,
                 std::span<const ColorWheelData> wheels, FindingReport& report) {
  if (!IsUsed(slot)) {
    if (slot.SlotMarker != IllumCharacteristics::kFreeSlot) {
      report.Warning("illumination.slot-marker", kSources,
                     name + " is marked " + std::to_string(slot.SlotMarker) +
                         ", neither used nor free, and is not shown");
    }
    return;
  }
  if (slot.BaseColor < IllumCharacteristics::kRed ||
      slot.BaseColor > IllumCharacteristics::kWhite) {
    report.Error(
        "illumination.base-color", kSources,
        name + " has the base color " + BaseColorName(slot) + ", which the page does not offer");
  }
  if (slot.IsLed != 0 && slot.IsLed != 1) {
    report.Error("illumination.source-kind", kSources,
                 name + " is of kind " + std::to_string(slot.IsLed) + ", neither laser nor LED");
  }
  if (slot.WheelNumber >= 0 &&
      std::ranges::count(wheels, slot.WheelNumber, &ColorWheelData::WheelNumber) == 0) {
    report.Error("illumination.missing-wheel", kSources,
                 name + " shines through wheel " + std::to_string(slot.WheelNumber) +
                     ", which is not there");
  }
}

void CheckUse(const IlluminationConfigurationData& data, const ColorWheelData& wheel,
              const std::string& name, FindingReport& report) {
  const auto first =
      std::ranges::find(data.Wheels, wheel.WheelNumber, &ColorWheelData::WheelNumber);
  if (&*first != &wheel) {
    report.Error("illumination.wheel-number", kWheels,
                 "there is more than one " + name + "; the page shows the first");
    return;
  }
  const auto sources = SourcesOf(data, wheel);
  if (sources == 0) {
    report.Warning("illumination.unused-wheel", kWheels, "no source shines through " + name);
  } else if (sources > 1) {
    report.Warning("illumination.shared-wheel", kWheels,
                   std::to_string(sources) + " sources shine through " + name +
                       "; editing gives each a wheel of its own");
  }
}

void CheckWheel(const ColorWheelData& wheel, const std::string& name, FindingReport& report) {
  const double total = WheelTotal(wheel.Segments);
  if (TotalRefusal(wheel.Segments.size(), total)) {
    report.Error("illumination.wheel-total", kWheels,
                 "the segments of " + name + " add up to " + DegreesText(total) + " degrees");
  }
  if (!(wheel.SpokeSize >= 0 && wheel.SpokeSize <= kLargestSpokeDegrees)) {
    report.Warning("illumination.spoke-size", kWheels,
                   "the spoke size of " + name + " is " + platform::GeneralText(wheel.SpokeSize) +
                       ", outside 0 to 90");
  }
  for (std::size_t i = 0; i < wheel.Segments.size(); ++i) {
    const SSegGeom& segment = wheel.Segments[i];
    const std::string part = "segment " + std::to_string(i) + " of " + name;
    if (color_code::Name(segment.Color).empty()) {
      report.Error("illumination.segment-color", kWheels, part + " has no color");
    }
    report.Within(segment.Size, 0, 360, "illumination.segment-size", kWheels,
                  "the size of " + part);
  }
}

}  // namespace

Findings CheckConfiguration(const IlluminationConfigurationData& data) {
  FindingReport report;
  for (std::size_t i = 0; i < data.Sources.size(); ++i) {
    CheckSource(data.Sources[i], "the source in slot " + std::to_string(i + 1), data.Wheels,
                report);
  }
  for (const ColorWheelData& wheel : data.Wheels) {
    const std::string name = "wheel " + std::to_string(wheel.WheelNumber);
    CheckUse(data, wheel, name, report);
    CheckWheel(wheel, name, report);
  }
  if (data.WheelSlots != data.Wheels.size() + 1) {
    report.Error("illumination.wheel-slots", kWheels,
                 std::to_string(data.WheelSlots) + " wheel slots for " +
                     std::to_string(data.Wheels.size()) + " wheels");
  }
  return report.Take();
}

}  // namespace illumination_config
