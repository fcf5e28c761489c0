// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/segment_row.h"

#include <optional>

#include "host/calc/color_code.h"
#include "host/text/leading_number.h"
#include "pages/color_wheel/rules/color_list.h"
#include "platform/text/number.h"

namespace color_wheel {
namespace {

constexpr std::size_t kColorCell = 0;
constexpr std::size_t kSizeCell = 1;
constexpr std::size_t kFirstFilterCell = 2;

std::string SizeText(const SSegGeom& segment) { return platform::FixedText(segment.Size, 2); }

std::optional<double> NumberWithin(const std::string& text, double low, double high) {
  const std::optional<double> value = leading_number::EnteredNumber(text);
  return value && *value >= low && *value <= high ? value : std::nullopt;
}

bool TakeColor(std::string& cell, SSegGeom& segment, SFilterSpec& filter) {
  if (cell == color_code::Name(segment.Color)) return false;
  if (cell == kNoColorChoice) cell.clear();
  segment.Color = filter.Color = color_code::FromName(cell);
  return true;
}

TakenRow TakeSize(const std::string& shown, std::string& cell, SSegGeom& segment) {
  const bool counted = color_code::IsCounted(segment.Color);
  const std::optional<double> size =
      counted ? NumberWithin(cell, 0.0, kMaxSegmentDegrees) : std::nullopt;
  if (!size) {
    cell = counted ? SizeText(segment) : std::string();
    return {.changed = false, .sizeRefused = true};
  }
  if (cell == shown || *size == segment.Size) return {};
  segment.Size = *size;
  return {.changed = true, .sizeRefused = false};
}

bool TakeFilterValue(const FilterColumn& column, const std::string& cell, SFilterSpec& filter) {
  const std::optional<double> value = NumberWithin(cell, column.low, column.high);
  if (!value || *value == filter.*column.member) return false;
  filter.*column.member = *value;
  return true;
}

}  // namespace

std::span<const FilterColumn, 5> FilterColumns() {
  static constexpr std::array<FilterColumn, 5> columns{{
      {"Peak\r\nTrans", &SFilterSpec::PeakTransmission, 3, 0, 1},
      {"SW 50%", &SFilterSpec::Sw50, 1, 300, 850},
      {"LW 50%", &SFilterSpec::Lw50, 1, 300, 850},
      {"SW\r\nFactor", &SFilterSpec::SwFactor, 2, 0, 2},
      {"LW\r\nFactor", &SFilterSpec::LwFactor, 2, 0, 1},
  }};
  return columns;
}

std::string RefusedFilterHint(const FilterColumn& column, const SFilterSpec& filter) {
  return "Not taken: a number from " + platform::GeneralText(column.low) + " to " +
         platform::GeneralText(column.high) + " is. Stored is " +
         platform::ShortestText(filter.*column.member) + ".";
}

RowTexts ShownRow(const SSegGeom& segment, const SFilterSpec& filter) {
  RowTexts texts;
  texts[kColorCell] = color_code::Name(segment.Color);
  texts[kSizeCell] = SizeText(segment);
  for (std::size_t i = 0; i < FilterColumns().size(); ++i) {
    const FilterColumn& column = FilterColumns()[i];
    texts[kFirstFilterCell + i] = platform::FixedText(filter.*column.member, column.decimals);
  }
  return texts;
}

TakenRow TakeRow(const RowTexts& shown, RowTexts& cells, SSegGeom& segment, SFilterSpec& filter) {
  const bool recolored = TakeColor(cells[kColorCell], segment, filter);
  TakenRow taken = TakeSize(shown[kSizeCell], cells[kSizeCell], segment);
  taken.changed |= recolored;
  for (std::size_t i = 0; i < FilterColumns().size(); ++i) {
    const std::size_t cell = kFirstFilterCell + i;
    if (cells[cell] == shown[cell]) continue;
    taken.changed |= TakeFilterValue(FilterColumns()[i], cells[cell], filter);
  }
  return taken;
}

}  // namespace color_wheel
