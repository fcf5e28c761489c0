// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/pixmeld/rules/pixmeld_fields.h"

#include "platform/text/number.h"

namespace pixmeld {

const std::array<Field, 3>& Fields() {
  static constexpr std::array<Field, 3> fields{{
      {"Start of 1st Subframe", &PixmeldControlData::StartOfFirstSubframe, "degrees", 0, 360,
       "Enter the desired start of the first Pixmeld subframe in degrees.", "pixmeld.start-range"},
      {"Subframe Signal Latency", &PixmeldControlData::SubframeSignalLatency, "usecs", 0, 10000,
       "Enter the amount of time between the signal to switch subframes and the beginning of the "
       "actuator response.",
       "pixmeld.latency-range"},
      {"Actuator Switch Time", &PixmeldControlData::ActuatorSwitchTime, "usecs", 0, 10000,
       "Enter the amount of time it takes the actuator to switch positions.",
       "pixmeld.switch-time-range"},
  }};
  return fields;
}

std::string UnitText(const Field& field) {
  return std::string(field.unit) + " [" + platform::FixedText(field.low, 0) + "-" +
         platform::FixedText(field.high, 0) + "]";
}

Findings Check(const PixmeldControlData& data) {
  Findings findings;
  for (const Field& field : Fields()) {
    const double value = data.*field.member;
    if (value >= field.low && value <= field.high) continue;
    findings.push_back({Severity::kError, field.ruleId, field.label,
                        std::string(field.label) + " is " + platform::GeneralText(value) +
                            ", outside " + UnitText(field)});
  }
  return findings;
}

}  // namespace pixmeld
