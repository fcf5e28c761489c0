// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/segment_row.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using color_wheel::RowTexts;
using color_wheel::ShownRow;
using color_wheel::TakenRow;
using color_wheel::TakeRow;

struct Row {
  SSegGeom segment;
  SFilterSpec filter;

  /// Types the text into a cell of the row as it is shown and takes the row.
  TakenRow Type(std::size_t column, const std::string& text) {
    const RowTexts shown = ShownRow(segment, filter);
    cells = shown;
    cells[column] = text;
    return TakeRow(shown, cells, segment, filter);
  }
  RowTexts cells;
};

Row RedRow() {
  Row row;
  row.segment.Color = row.filter.Color = 0;
  row.segment.Size = 119.987;
  row.filter.PeakTransmission = 0.87654;
  return row;
}

TEST(SegmentRow, WhatNobodyEditedIsNotTaken) {
  Row row = RedRow();
  const Row before = row;
  RowTexts cells = ShownRow(row.segment, row.filter);
  EXPECT_EQ(cells, (RowTexts{"Red", "119.99", "0.877", "300.0", "850.0", "0.00", "0.00"}));
  const TakenRow taken = TakeRow(cells, cells, row.segment, row.filter);
  EXPECT_FALSE(taken.changed);
  EXPECT_FALSE(taken.sizeRefused);
  EXPECT_EQ(row.segment, before.segment);
  EXPECT_EQ(row.filter, before.filter);
}

TEST(SegmentRow, TakesSizesFrom0To360OfCountedColors) {
  const struct {
    const char* text;
    double size;
    bool refused;
  } cases[] = {{"0", 0, false},           {"360", 360, false},     {"12.5abc", 12.5, false},
               {"360.01", 119.987, true}, {"-1", 119.987, true},   {"", 119.987, true},
               {"abc", 119.987, true},    {"0abc", 119.987, true}, {"0x10", 119.987, true}};
  for (const auto& [text, size, refused] : cases) {
    Row row = RedRow();
    const TakenRow taken = row.Type(1, text);
    EXPECT_EQ(row.segment.Size, size) << text;
    EXPECT_EQ(taken.sizeRefused, refused) << text;
    EXPECT_EQ(taken.changed, !refused) << text;
    if (refused) {
      EXPECT_EQ(row.cells[1], "119.99") << text;
    }
  }
}

TEST(SegmentRow, AColorThatDoesNotCountHasNoSize) {
  Row row = RedRow();
  const TakenRow none = row.Type(0, "None");
  EXPECT_TRUE(none.changed);
  EXPECT_TRUE(none.sizeRefused);
  EXPECT_EQ(row.cells[0], "");
  EXPECT_EQ(row.cells[1], "");
  EXPECT_EQ(row.segment.Color, -1);
  EXPECT_EQ(row.filter.Color, -1);
  EXPECT_EQ(row.segment.Size, 119.987);

  row.Type(0, "White Spoke");
  EXPECT_EQ(row.segment.Color, 8);
  EXPECT_TRUE(row.Type(1, "20").sizeRefused);
  EXPECT_EQ(row.segment.Size, 119.987);

  // The size comes back with a color that counts, though the cell was emptied.
  row.cells = {"NDBlue", "", "0.877", "300.0", "850.0", "0.00", "0.00"};
  EXPECT_TRUE(TakeRow(row.cells, row.cells, row.segment, row.filter).sizeRefused);
  EXPECT_EQ(row.segment.Color, 14);
  EXPECT_EQ(row.cells[1], "119.99");
}

TEST(SegmentRow, TakesFilterValuesWithinTheirRange) {
  const struct {
    std::size_t column;
    const char* text;
    bool taken;
  } cases[] = {{2, "1", true},     {2, "1.001", false}, {2, "0", true}, {3, "299.9", false},
               {3, "850", true},   {4, "300", true},    {4, "", false}, {5, "1.5", true},
               {5, "2.01", false}, {6, "1.5", false},   {6, "1", true}, {6, "-0.1", false},
               {6, "x", false}};
  for (const auto& [column, text, expected] : cases) {
    Row row = RedRow();
    row.filter.Lw50 = 800;
    EXPECT_EQ(row.Type(column, text).changed, expected) << column << " " << text;
    EXPECT_EQ(row.cells[column], text);
    const double value = row.filter.*color_wheel::FilterColumns()[column - 2].member;
    if (expected) {
      EXPECT_EQ(value, std::stod(text));
    }
  }
}

}  // namespace
