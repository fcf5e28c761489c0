// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/illuminators_page_data.h"

namespace illuminators {

inline constexpr int kRows = IlluminatorsPageData::kCount;
inline constexpr int kFixedRows = IlluminatorsPageData::kFixedRows;

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// What the illuminator's name field is painted with; nothing for a number that is no type.
[[nodiscard]] std::optional<Rgb> ColorOf(std::int32_t type) noexcept;

/// One of an illuminator's times: how it is called and where it is kept.
struct TimeField {
  const char* name;   ///< behind "Row N/"
  const char* label;  ///< head of the column
  const char* toolTip;
  double IllumCharacteristics::*member;
};

inline constexpr double kMinTimeUs = 0.0;
inline constexpr double kMaxTimeUs = 2000.0;
inline constexpr int kTimeDecimals = 2;  ///< that a field shows

[[nodiscard]] const std::array<TimeField, 3>& TimeFields() noexcept;

/// How many rows are shown: the fixed ones and one for each illuminator that may be offered.
[[nodiscard]] int ShownRows(const IlluminatorsPageData& data) noexcept;

/// The names of the illuminators beyond red, green and blue that are in a row.
[[nodiscard]] std::vector<std::string> ShownNames(const IlluminatorsPageData& data);

/// What the row's drop-down list offers: nothing, the row's own illuminator, and those that are
/// allowed and in no row.
[[nodiscard]] std::vector<std::string> DropDownContents(const IlluminatorsPageData& data, int row);

/// Whether the row, one of those with a drop-down list, shows an illuminator.
[[nodiscard]] bool RowEnabled(const IlluminatorsPageData& data, int row) noexcept;

/// The illuminator that the row shows, or null.
[[nodiscard]] const IllumCharacteristics* ShownIn(const IlluminatorsPageData& data,
                                                  int row) noexcept;

/// The values of a row's fields, in the order of TimeFields; nothing for a field that was not
/// edited.
using TimeEdits = std::array<std::optional<double>, 3>;

/// Stores one row: the illuminator it showed takes the edited times, and the one of the chosen name
/// comes into the row, keeping the times that it has. `chosen` is the drop-down list's text,
/// nothing when no choice was made; it is not asked in a fixed row. True when the data changed.
[[nodiscard]] bool StoreRow(IlluminatorsPageData& data, int row,
                            std::optional<std::string_view> chosen, const TimeEdits& edits);

}  // namespace illuminators
