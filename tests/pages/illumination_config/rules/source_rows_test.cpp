// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/rules/source_rows.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "pages/illumination_config/rules/configuration_check.h"
#include "pages/illumination_config/rules/wheel_total.h"

namespace {

using illumination_config::CheckConfiguration;
using illumination_config::LoadRows;
using illumination_config::SourceRow;
using illumination_config::StoreRows;
using testing::ElementsAre;
using testing::IsEmpty;

ColorWheelData Wheel(std::int16_t number, double size) {
  ColorWheelData wheel;
  wheel.WheelNumber = number;
  wheel.SpokeSize = 12.3456;
  wheel.Segments.resize(2);
  wheel.Segments[0].Color = 1;
  wheel.Segments[0].Size = size;
  wheel.Segments[1].Color = 17;
  wheel.Segments[1].Size = 360 - size;
  return wheel;
}

/// All eight slots, three of them through wheels that are not stored in slot order.
IlluminationConfigurationData Full() {
  IlluminationConfigurationData data;
  for (std::size_t i = 0; i < data.Sources.size(); ++i) {
    data.Sources[i].SlotMarker = IllumCharacteristics::kUsedSlot;
    data.Sources[i].BaseColor = static_cast<std::int32_t>(i % 7);
    data.Sources[i].IsLed = i % 2;
    data.Sources[i].EnableDelay = 10.5 * static_cast<double>(i);
  }
  data.Sources[1].WheelNumber = 1;
  data.Sources[4].WheelNumber = 2;
  data.Sources[7].WheelNumber = 3;
  data.Wheels = {Wheel(1, 100.12345), Wheel(2, 200), Wheel(3, 300)};
  data.WheelSlots = 4;
  return data;
}

std::vector<std::string> Rules(const IlluminationConfigurationData& data) {
  std::vector<std::string> rules;
  for (const Finding& finding : CheckConfiguration(data)) {
    rules.push_back((finding.severity == Severity::kError ? "E " : "W ") + finding.rule);
  }
  return rules;
}

TEST(SourceRows, EveryTickedSourceGetsTheWheelItNames) {
  IlluminationConfigurationData data = Full();
  std::swap(data.Wheels[0], data.Wheels[2]);
  data.Sources[4].WheelNumber = 9;
  const std::vector<SourceRow> rows = LoadRows(data);
  EXPECT_EQ(rows[1].editor->rows[0].size, 100.12345);
  EXPECT_EQ(rows[7].editor->rows[0].size, 300);
  EXPECT_TRUE(rows[4].viaWheel);
  EXPECT_FALSE(rows[4].editor);
  // Wheels are numbered anew in row order.
  const IlluminationConfigurationData stored = StoreRows(rows, data);
  EXPECT_EQ(stored.Sources[1].WheelNumber, 1);
  EXPECT_EQ(stored.Sources[4].WheelNumber, IllumCharacteristics::kNoWheel);
  EXPECT_EQ(stored.Sources[7].WheelNumber, 2);
  EXPECT_EQ(stored.Wheels[1].Segments[0].Size, 300);
  EXPECT_EQ(stored.WheelSlots, 3);
}

TEST(SourceRows, WhatNobodyEditedKeepsItsValue) {
  IlluminationConfigurationData data = Full();
  data.Sources[0].BaseColor = IllumCharacteristics::kIR;
  data.Sources[2].IsLed = 5;
  data.Wheels[0].UseModeledPwm = false;
  std::vector<SourceRow> rows = LoadRows(data);
  EXPECT_EQ(rows[0].baseColor, "");
  EXPECT_EQ(StoreRows(rows, data), data);
  // Editing one cell of a wheel leaves the others their digits.
  rows[1].editor->rows[1].size = 10;
  rows.erase(rows.begin());
  const IlluminationConfigurationData stored = StoreRows(rows, data);
  EXPECT_EQ(stored.Wheels[0].Segments[0].Size, 100.12345);
  EXPECT_EQ(stored.Wheels[0].Segments[1].Size, 10);
  EXPECT_EQ(stored.Wheels[0].SpokeSize, 12.3456);
  EXPECT_EQ(stored.Sources[1].IsLed, 5);
  EXPECT_EQ(stored.Sources[0].EnableDelay, 10.5);
  EXPECT_EQ(stored.Sources[7], IllumCharacteristics());
}

TEST(WheelTotal, RefusesWhatNoTurnHolds) {
  const std::vector<SSegGeom> segments{{.Color = 0, .Size = 200}, {.Color = -1, .Size = 200}};
  const double total = illumination_config::WheelTotal(segments);
  EXPECT_EQ(illumination_config::DegreesText(total), "400.00");
  EXPECT_NE(illumination_config::TotalRefusal(2, total), std::nullopt);
  EXPECT_EQ(illumination_config::TotalRefusal(0, total), std::nullopt);
  EXPECT_NE(illumination_config::TotalRefusal(1, -0.01), std::nullopt);
  EXPECT_EQ(illumination_config::TotalRefusal(1, 360), std::nullopt);
  EXPECT_EQ(illumination_config::TotalRefusal(3, 0.1 + 258.6 + 101.3), std::nullopt);
}

TEST(ConfigurationCheck, SaysWhatIsWrong) {
  EXPECT_THAT(Rules(Full()), IsEmpty());
  EXPECT_THAT(Rules(IlluminationConfigurationData()), IsEmpty());
  IlluminationConfigurationData data = Full();
  data.Sources[0].SlotMarker = 3;
  data.Sources[1].BaseColor = IllumCharacteristics::kIR;
  data.Sources[2].IsLed = 2;
  data.Sources[4].WheelNumber = 7;
  data.Sources[6].WheelNumber = 3;
  data.Wheels[0].Segments[0].Size = -1;
  data.Wheels[0].Segments[1].Color = -1;
  data.Wheels[2].Segments[0].Size = 301;
  data.Wheels[2].SpokeSize = -1;
  data.WheelSlots = 3;
  EXPECT_THAT(Rules(data),
              ElementsAre("W illumination.slot-marker", "E illumination.base-color",
                          "E illumination.source-kind", "E illumination.missing-wheel",
                          "E illumination.segment-size", "E illumination.segment-color",
                          "W illumination.unused-wheel", "W illumination.shared-wheel",
                          "E illumination.wheel-total", "W illumination.spoke-size",
                          "E illumination.wheel-slots"));
  const Findings findings = CheckConfiguration(data);
  EXPECT_EQ(findings[1].text,
            "the source in slot 2 has the base color IR, which the page does not offer");
  data.Wheels[1].WheelNumber = 1;
  EXPECT_THAT(Rules(data), testing::Contains("E illumination.wheel-number").Times(1));
}

}  // namespace
