// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/illumination_configuration_data.h"

/// Sources and wheels as the page's grids hold them, and their way from and to the data.
namespace illumination_config {

/// The choices of the list columns, each with its separator behind it.
inline constexpr std::string_view kKindList = "LASER|LED|";
inline constexpr std::string_view kColorList = "Red|Green|Blue|Yellow|Magenta|Cyan|White|";

inline constexpr int kMaxSources = IlluminationConfigurationData::kSlots;
inline constexpr double kNewSpokeDegrees = 18.0;

/// One row of a wheel's segment grid.
struct WheelRow {
  std::string color = "White";
  double size = 0;  ///< degrees; the grid shows it rounded

  [[nodiscard]] bool operator==(const WheelRow&) const = default;
};

/// The wheel of one source while it is edited.
struct WheelEditor {
  double spokeSize = kNewSpokeDegrees;  ///< degrees
  std::vector<WheelRow> rows;
  std::optional<ColorWheelData> stored;  ///< what the editor was made of; kept while it is the same
};

/// One row of the sources grid.
struct SourceRow {
  std::string kind = "LASER";
  std::string baseColor = "White";
  bool viaWheel = false;
  std::optional<WheelEditor> editor;
  IllumCharacteristics slot;  ///< the slot the row was made of; what no cell shows stays in it
};

[[nodiscard]] WheelEditor MakeEditor(const ColorWheelData& wheel);
/// The wheel as it would be stored, but for its number.
[[nodiscard]] ColorWheelData MakeWheel(const WheelEditor& editor);
/// A row a used slot, in slot order. A source that names a wheel is ticked and has the first stored
/// wheel of that number; without one it has no editor yet.
[[nodiscard]] std::vector<SourceRow> LoadRows(const IlluminationConfigurationData& data);

/// The configuration that the rows, at most kMaxSources, describe: row i in slot i, the wheels of
/// the rows with an editor numbered from 1 in row order. What is in the grids as it was loaded
/// keeps its stored value, also where it was shown rounded. Free slots of `previous` stay as they
/// are.
[[nodiscard]] IlluminationConfigurationData StoreRows(
    std::span<const SourceRow> rows, const IlluminationConfigurationData& previous);

}  // namespace illumination_config
