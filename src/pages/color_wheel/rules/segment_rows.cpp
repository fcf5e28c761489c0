// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/segment_rows.h"

#include <algorithm>

namespace color_wheel {
namespace {

SFilterSpec NewFilter(int color) {
  SFilterSpec filter;
  filter.Color = color;
  return filter;
}

/// Brings the element at `from` to the earlier place `to`; those between go one place on.
template <class T>
void BringForward(std::vector<T>& items, std::ptrdiff_t from, std::ptrdiff_t to) {
  std::rotate(items.begin() + to, items.begin() + from, items.begin() + from + 1);
}

}  // namespace

SFilterSpec FilterOf(const ColorWheelData& wheel, std::size_t segment) {
  return segment < wheel.FilterSpecs.size() ? wheel.FilterSpecs[segment]
                                            : NewFilter(wheel.Segments[segment].Color);
}

void MatchFilters(ColorWheelData& wheel) {
  for (std::size_t i = wheel.FilterSpecs.size(); i < wheel.Segments.size(); ++i) {
    wheel.FilterSpecs.push_back(NewFilter(wheel.Segments[i].Color));
  }
  wheel.FilterSpecs.resize(wheel.Segments.size());
}

void AddSegment(ColorWheelData& wheel, int rowTag) {
  MatchFilters(wheel);
  wheel.Segments.emplace_back().RowTag = rowTag;
  wheel.FilterSpecs.emplace_back();
}

void CopySegments(ColorWheelData& wheel, std::span<const RowBlock> blocks) {
  MatchFilters(wheel);
  for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) {
    for (int each = block->first; each <= block->second; ++each) {
      const auto row = static_cast<std::size_t>(each);
      wheel.Segments.push_back(SSegGeom(wheel.Segments[row]));
      wheel.FilterSpecs.push_back(SFilterSpec(wheel.FilterSpecs[row]));
    }
  }
}

void DeleteSegments(ColorWheelData& wheel, std::span<const RowBlock> blocks) {
  MatchFilters(wheel);
  for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) {
    const auto [first, last] = *block;
    wheel.Segments.erase(wheel.Segments.begin() + first, wheel.Segments.begin() + last + 1);
    wheel.FilterSpecs.erase(wheel.FilterSpecs.begin() + first,
                            wheel.FilterSpecs.begin() + last + 1);
  }
}

void OrderByRows(ColorWheelData& wheel, std::span<const int> rowTags) {
  MatchFilters(wheel);
  std::ptrdiff_t place = 0;
  for (const int tag : rowTags) {
    const auto begin = wheel.Segments.begin() + place;
    const auto found = std::ranges::find(begin, wheel.Segments.end(), tag, &SSegGeom::RowTag);
    if (found == wheel.Segments.end()) continue;
    const std::ptrdiff_t from = found - wheel.Segments.begin();
    BringForward(wheel.Segments, from, place);
    BringForward(wheel.FilterSpecs, from, place);
    ++place;
  }
}

}  // namespace color_wheel
