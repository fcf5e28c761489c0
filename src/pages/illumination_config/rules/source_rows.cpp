// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/rules/source_rows.h"

#include <algorithm>

#include "host/calc/color_code.h"

namespace illumination_config {
namespace {

std::string KindText(const IllumCharacteristics& slot) { return slot.IsLed == 1 ? "LED" : "LASER"; }

/// Empty for the types that the base color list does not offer.
std::string BaseColorText(const IllumCharacteristics& slot) {
  if (slot.BaseColor == IllumCharacteristics::kIR) return {};
  return std::string(IllumCharacteristics::GetStrForIllumType(slot.BaseColor));
}

std::vector<WheelRow> RowsOf(const ColorWheelData& wheel) {
  std::vector<WheelRow> rows;
  for (const SSegGeom& segment : wheel.Segments) {
    rows.push_back({std::string(color_code::Name(segment.Color)), segment.Size});
  }
  return rows;
}

SourceRow LoadRow(const IllumCharacteristics& slot, std::span<const ColorWheelData> wheels) {
  SourceRow row{.kind = KindText(slot),
                .baseColor = BaseColorText(slot),
                .viaWheel = slot.WheelNumber >= 0,
                .editor = std::nullopt,
                .slot = slot};
  const auto wheel = std::ranges::find(wheels, slot.WheelNumber, &ColorWheelData::WheelNumber);
  if (row.viaWheel && wheel != wheels.end()) row.editor = MakeEditor(*wheel);
  return row;
}

bool IsAsStored(const WheelEditor& editor) {
  return editor.stored && editor.spokeSize == editor.stored->SpokeSize &&
         editor.rows == RowsOf(*editor.stored);
}

IllumCharacteristics StoreSource(const SourceRow& row) {
  IllumCharacteristics slot = row.slot;
  slot.SlotMarker = IllumCharacteristics::kUsedSlot;
  slot.WheelNumber = IllumCharacteristics::kNoWheel;
  if (row.kind != KindText(row.slot)) slot.IsLed = row.kind == "LED" ? 1 : 0;
  if (row.baseColor != BaseColorText(row.slot)) {
    slot.BaseColor = IllumCharacteristics::GetIllumTypeForStr(row.baseColor);
  }
  return slot;
}

void FreeSlot(IllumCharacteristics& slot) {
  if (slot.SlotMarker == IllumCharacteristics::kUsedSlot) slot = IllumCharacteristics();
  slot.SlotMarker = IllumCharacteristics::kFreeSlot;
}

}  // namespace

WheelEditor MakeEditor(const ColorWheelData& wheel) {
  return {.spokeSize = wheel.SpokeSize, .rows = RowsOf(wheel), .stored = wheel};
}

ColorWheelData MakeWheel(const WheelEditor& editor) {
  if (IsAsStored(editor)) return *editor.stored;
  ColorWheelData wheel;
  wheel.SpokeSize = editor.spokeSize;
  for (const WheelRow& row : editor.rows) {
    SSegGeom& segment = wheel.Segments.emplace_back();
    segment.Color = color_code::FromName(row.color);
    segment.Size = row.size;
  }
  return wheel;
}

std::vector<SourceRow> LoadRows(const IlluminationConfigurationData& data) {
  std::vector<SourceRow> rows;
  for (const IllumCharacteristics& slot : data.Sources) {
    if (slot.SlotMarker == IllumCharacteristics::kUsedSlot) {
      rows.push_back(LoadRow(slot, data.Wheels));
    }
  }
  return rows;
}

IlluminationConfigurationData StoreRows(std::span<const SourceRow> rows,
                                        const IlluminationConfigurationData& previous) {
  IlluminationConfigurationData data;
  data.Sources = previous.Sources;
  std::ranges::for_each(data.Sources, FreeSlot);
  for (std::size_t i = 0; i < std::min(rows.size(), data.Sources.size()); ++i) {
    data.Sources[i] = StoreSource(rows[i]);
    if (!rows[i].editor) continue;
    ColorWheelData& wheel = data.Wheels.emplace_back(MakeWheel(*rows[i].editor));
    wheel.WheelNumber = data.Sources[i].WheelNumber = static_cast<std::int16_t>(data.Wheels.size());
  }
  data.WheelSlots = static_cast<std::uint16_t>(data.Wheels.size() + 1);
  return data;
}

}  // namespace illumination_config
