// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/color_wheel_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>
#include <random>

#include "host/data/color_wheel_data.h"
#include "host/gui/message_box.h"
#include "host/project/log.h"
#include "host/project/ost_command_line_info.h"
#include "pages/color_wheel/rules/segment_row.h"
#include "pages/color_wheel/rules/wheel_sizes.h"
#include "support/page_form.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Blocks = TableAccess::Blocks;

constexpr const char* kSumError =
    "Error:  The sum of all color wheel segments must be less than or equal to 360 degrees.";

std::string Segment(const char* color, double degrees) {
  return std::string("<Segment color=\"") + color + "\" degrees=\"" + std::to_string(degrees) +
         "\"><Filter peakTransmission=\"0.9004\"/></Segment>";
}

std::string WithSegments(const std::string& segments) {
  return "<RunTimeDB><ColorWheel><SpokeSize degrees=\"12.0004\"/><NominalFrameRate hertz=\"60\"/>"
         "<Segments>" +
         segments + "</Segments></ColorWheel></RunTimeDB>";
}

std::string Rgb() { return Segment("Red", 120) + Segment("Green", 120) + Segment("Blue", 120); }

constexpr const char* kRates =
    "<Key name=\"projectclass.seqrange.supportednominalframerates\"> 50\t60 </Key>";

/// The page on that wheel.
struct WheelPage : test::PageForm<ColorWheelData> {
  explicit WheelPage(const std::string& segments = Rgb(), const std::string& keys = kRates)
      : PageForm("ColorWheelPage", WithSegments(segments), keys), logged(tostream::Lines().size()) {
    (void)Form();
    TakeLog();
  }
  automation::Table Grid() { return Table("Segment Geometry"); }
  /// The log's entries since the last call.
  std::vector<std::string> TakeLog() {
    std::vector<std::string> texts;
    for (; logged < tostream::Lines().size(); ++logged) {
      const tostream::Line& line = tostream::Lines()[logged];
      EXPECT_EQ(line.level, tostream::kLogError);
      texts.push_back(line.text);
    }
    return texts;
  }
  std::vector<int> Colors() {
    std::vector<int> colors;
    for (const SSegGeom& segment : Now().Segments) colors.push_back(segment.Color);
    return colors;
  }
  /// The operations whose buttons are enabled, in the order of the buttons.
  std::string Enabled() {
    std::string letters;
    for (const char* name : {"Add row", "Copy rows", "Delete rows", "Move to top", "Move up",
                             "Move down", "Move to bottom"}) {
      letters += Control(name).Enabled() ? 'x' : '-';
    }
    return letters;
  }

  std::size_t logged;
};

TEST(ColorWheelPage, ShowsTheWheelAndTakesNothingThatNobodyEdited) {
  WheelPage page;
  const automation::Table grid = page.Grid();
  EXPECT_EQ(grid.Headers(), (QStringList{"Segment", "Degrees", "Peak\r\nTrans", "SW 50%", "LW 50%",
                                         "SW\r\nFactor", "LW\r\nFactor"}));
  EXPECT_EQ(grid.Rows(), 3);
  QStringList row;
  for (int column = 0; column < grid.Columns(); ++column) row << grid.Cell(1, column);
  EXPECT_EQ(row.join(' '), "Green 120.00 0.900 300.0 850.0 0.00 0.00");
  EXPECT_EQ(page.Text("Total"), "360.00");
  const ColorWheelData before = page.Now();
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_THAT(page.TakeLog(), IsEmpty());
  EXPECT_EQ(page.Now(), before);
  EXPECT_EQ(before.FilterSpecs[1].PeakTransmission, 0.9004);
  EXPECT_EQ(before.SpokeSize, 12.0004);
}

TEST(ColorWheelPage, OffersTheColorsOfTheProjectAndThatOfTheSegment) {
  const std::string key = "<Key name=\"projectclass.colorwheel.supportedcolors\">BrY</Key>";
  {
    WheelPage page(Segment("Blue", 120) + Segment("White Spoke", 0), key);
    EXPECT_EQ(page.Grid().Choices(0, 0), (QStringList{"Blue", "Yellow", "NDRed", "None"}));
    EXPECT_EQ(page.Grid().Cell(1, 0), "White Spoke");
  }
  EXPECT_EQ(WheelPage().Grid().Choices(0, 0),
            (QStringList{"Red", "Green", "Blue", "White", "Cyan", "Yellow", "Magenta", "None"}));
}

TEST(ColorWheelPage, EntriesAreTakenWithinTheirLimits) {
  const struct {
    int column;
    const char* text;
    bool taken;
    const char* shown;
  } entries[] = {
      {1, "0", true, "0.00"},        {1, "360", true, "360.00"},     {1, "12.3456", true, "12.35"},
      {1, "12.5abc", true, "12.50"}, {1, "360.01", false, "120.00"}, {1, "-0.01", false, "120.00"},
      {1, "", false, "120.00"},      {1, "abc", false, "120.00"},    {1, "0abc", false, "120.00"},
      {1, "0x10", false, "120.00"},  {2, "0", true, "0.000"},        {2, "1", true, "1.000"},
      {2, "1.001", false, "1.001"},  {2, "-0.1", false, "-0.1"},     {3, "850", true, "850.0"},
      {3, "299.9", false, "299.9"},  {4, "300", true, "300.0"},      {4, "", false, ""},
      {4, "850.1", false, "850.1"},  {5, "1.5", true, "1.50"},       {5, "2.01", false, "2.01"},
      {6, "1", true, "1.00"},        {6, "1.5", false, "1.5"},       {6, "x", false, "x"}};
  for (const auto& [column, text, taken, shown] : entries) {
    SCOPED_TRACE(testing::Message() << column << ": " << text);
    WheelPage page;
    const ColorWheelData before = page.Now();
    page.Grid().SetCell(1, column, text);
    EXPECT_EQ(page.TakeChanged(), taken);
    const ColorWheelData after = page.Now();
    EXPECT_EQ(after != before, taken);
    const SFilterSpec& filter = after.FilterSpecs[1];
    const double stored[] = {
        after.Segments[1].Size, filter.PeakTransmission, filter.Sw50, filter.Lw50,
        filter.SwFactor,        filter.LwFactor};
    EXPECT_TRUE(!taken || stored[column - 1] == std::strtod(text, nullptr));
    EXPECT_EQ(page.Grid().Cell(1, column), shown);
    EXPECT_EQ(std::ranges::count(page.TakeLog(), color_wheel::kSizeMessage), !taken && column == 1);
    EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty());
  }
}

TEST(ColorWheelPage, ARefusedFilterValueIsMarkedAndGoesWithTheNextShowing) {
  WheelPage page;
  const QString plain = page.Grid().Background(0, 6);
  page.Grid().SetCell(0, 6, "1.5");
  EXPECT_NE(page.Grid().Background(0, 6), plain);
  EXPECT_EQ(page.Grid().ToolTip(0, 6), "Not taken: a number from 0 to 1 is. Stored is 0.");
  page.Grid().SetCell(0, 6, "0.5");
  EXPECT_EQ(page.Grid().Background(0, 6), plain);
  EXPECT_EQ(page.Grid().ToolTip(0, 6), "");
  EXPECT_TRUE(page.TakeChanged());
  page.Grid().SetCell(0, 6, "-1");
  EXPECT_TRUE(page.Apply());
  EXPECT_EQ(page.Grid().Cell(0, 6), "0.50");
  EXPECT_EQ(page.Grid().Background(0, 6), plain);
  EXPECT_FALSE(page.TakeChanged());
}

TEST(ColorWheelPage, AColorDecidesWhetherThereIsASize) {
  WheelPage page(Rgb() + Segment("Black", 30) + Segment("White Spoke", 0));
  EXPECT_EQ(page.Text("Total"), "360.00");
  page.Grid().SetCell(4, 1, "15");
  // The row of Black loses its size in the same transfer.
  EXPECT_THAT(page.TakeLog(), SizeIs(2));
  EXPECT_EQ(page.Grid().Cell(4, 1), "");
  EXPECT_EQ(page.Grid().Cell(3, 1), "");
  EXPECT_FALSE(page.TakeChanged());

  page.Grid().SetCell(0, 0, "None");
  EXPECT_EQ(page.Grid().Cell(0, 0), "");
  EXPECT_EQ(page.Grid().Cell(0, 1), "");
  EXPECT_EQ(page.Text("Total"), "240.00");
  EXPECT_TRUE(page.TakeChanged());
  page.Grid().SetCell(0, 0, "Cyan");
  const ColorWheelData data = page.Now();
  EXPECT_EQ(data.Segments[0].Color, 4);
  EXPECT_EQ(data.FilterSpecs[0].Color, 4);
  EXPECT_EQ(page.Grid().Cell(0, 1), "120.00") << "the empty size is refused, the stored one shown";
}

TEST(ColorWheelPage, ATotalOfMoreThanATurnIsLoggedOnceATransfer) {
  // Their sum in binary is a little more than a turn.
  WheelPage page(Segment("Red", 0.1) + Segment("Green", 258.6) + Segment("Blue", 101.3));
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.TakeLog(), IsEmpty());
  page.Grid().SetCell(0, 1, "0.11");
  EXPECT_THAT(page.TakeLog(), ElementsAre(kSumError));
  EXPECT_EQ(page.Text("Total"), "360.01");
  EXPECT_EQ(page.Now().Segments[0].Size, 0.11);
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.TakeLog(), ElementsAre(kSumError, kSumError)) << "taken, then shown";
  EXPECT_THAT(page.Database(), HasSubstr("degrees=\"0.11\""));
}

TEST(ColorWheelPage, TheSpokeSizeIsTakenWhenItsBoxIsLeft) {
  WheelPage page;
  automation::Control box = page.Control("Spoke Size");
  EXPECT_EQ(box.Text(), "") << "the box is written when it is left";
  box.Type("");
  box.Leave();
  EXPECT_EQ(box.Text(), "12.000");
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_EQ(page.Now().SpokeSize, 12.0004) << "the shown text is no edit";
  struct {
    const char* text;
    const char* shown;
    double stored;
  } const entries[] = {{"90", "90.000", 90}, {"90.5", "90.000", 90},      {"abc", "90.000", 90},
                       {"-5", "-5.000", -5}, {"", "-5.000", -5},          {"-1e999", "-5.000", -5},
                       {"0", "0.000", 0},    {"18.5deg", "18.500", 18.5}, {"7.25", "7.250", 7.25}};
  double before = 12.0004;
  for (const auto& entry : entries) {
    box.SetText(entry.text);
    EXPECT_EQ(box.Text(), entry.shown) << entry.text;
    EXPECT_EQ(page.Now().SpokeSize, entry.stored) << entry.text;
    EXPECT_EQ(page.TakeChanged(), entry.stored != before) << entry.text;
    before = entry.stored;
  }
  // Row buttons take no focus: what is being typed stands until the box is left.
  box.SetText("7.25");
  box.Type("9");
  page.Form().Press("Add row");
  EXPECT_EQ(box.Text(), "7.2509");
  box.Leave();
  EXPECT_EQ(page.Now().SpokeSize, 7.2509);
  box.SetText("7.25");
  // An apply takes the text that is still being typed.
  box.Type("\b\b9");
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("<SpokeSize degrees=\"7.29\"/>"));
}

TEST(ColorWheelPage, OffersTheFrameRatesOfTheProject) {
  WheelPage page;
  automation::Control list = page.Control("Nominal Frame Rate");
  EXPECT_EQ(list.Items(), (QStringList{"  50.00", "  60.00"}));
  EXPECT_EQ(list.Index(), 1);
  list.Choose("  50.00");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Now().NominalFrameRate, 50);
  EXPECT_EQ(page.Now().SecondFrameRate, 50);
  list.Choose("  50.00");
  EXPECT_FALSE(page.TakeChanged());
  // Not applied: a new initialisation shows what is stored, with the same entries.
  page.Reopen();
  EXPECT_EQ(list.Index(), 1);
  EXPECT_EQ(list.Items().size(), 2);
}

TEST(ColorWheelPage, WithoutSupportedRatesTheDefaultIsStoredWhenItIsARate) {
  const std::tuple<const char*, QStringList, double> rates[] = {{"48", {"48.00"}, 48},
                                                                {"89.99", {"89.99"}, 89.99},
                                                                {"90", {}, 60},
                                                                {"0", {}, 60},
                                                                {"-1", {}, 60}};
  for (const auto& [rate, items, stored] : rates) {
    WheelPage page(
        Rgb(), std::string("<Key name=\"projectclass.seqrange.defaultnominalframerate\">") + rate +
                   "</Key>");
    const automation::Control list = page.Control("Nominal Frame Rate");
    EXPECT_EQ(list.Items(), items);
    EXPECT_EQ(list.Index(), items.isEmpty() ? -1 : 0);
    EXPECT_FALSE(list.Enabled());
    EXPECT_EQ(page.Now().NominalFrameRate, stored);
  }
}

TEST(ColorWheelPage, ButtonsFollowTheSelection) {
  WheelPage page;
  EXPECT_EQ(page.Enabled(), "x------");
  const std::pair<Blocks, const char*> selections[] = {
      {{{0, 0}}, "xxx--xx"}, {{{1, 1}}, "xxxxxxx"}, {{{1, 2}}, "xxxxx--"}, {{{0, 2}}, "xxx----"}};
  for (const auto& [rows, enabled] : selections) {
    page.Grid().Select(rows);
    EXPECT_EQ(page.Enabled(), enabled);
  }
}

TEST(ColorWheelPage, AddsADefaultRowWithoutAnEdit) {
  WheelPage page;
  page.Form().Press("Add row");
  EXPECT_FALSE(page.TakeChanged());
  ASSERT_EQ(page.Now().Segments.size(), 4u);
  EXPECT_EQ(page.Now().Segments[3], SSegGeom());
  EXPECT_EQ(page.Now().FilterSpecs[3], SFilterSpec());
  EXPECT_EQ(page.Grid().Cell(3, 0), "");
  EXPECT_EQ(page.Grid().Cell(3, 2), "0.950");
  EXPECT_THAT(page.Grid().Choices(3, 0), testing::Contains("None"));
  EXPECT_EQ(page.Grid().Selected(), (Blocks{{3, 3}}));
  page.Grid().SetCell(3, 0, "White");
  EXPECT_TRUE(page.TakeChanged());
}

TEST(ColorWheelPage, TwentyRowsEndAddingButNotCopying) {
  WheelPage page;
  for (int i = 3; i < 20; ++i) page.Form().Press("Add row");
  EXPECT_FALSE(page.Control("Add row").Enabled());
  page.Grid().Select({{0, 1}, {17, 18}});
  page.Form().Press("Copy rows");
  EXPECT_EQ(page.Grid().Rows(), 24);
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_THAT(page.Colors(), testing::IsSupersetOf({0, 1}));
  // The last block's copies come first.
  EXPECT_EQ(page.Now().Segments[20].Color, -1);
  EXPECT_EQ(page.Now().Segments[22].Color, 0);
  EXPECT_EQ(page.Grid().Cell(22, 0), "Red");
  EXPECT_EQ(page.Text("Total"), "600.00");
  page.interaction.Answer(msgbox::kAnswerYes);
  page.Grid().Select({{2, 6}});
  page.Form().Press("Delete rows");
  EXPECT_EQ(page.Grid().Rows(), 19);
  EXPECT_TRUE(page.Control("Add row").Enabled());
}

TEST(ColorWheelPage, DeletesAfterAQuestion) {
  WheelPage page;
  page.Grid().Select({{0, 0}, {2, 2}});
  page.Form().Press("Delete rows");
  const auto asked = page.interaction.TakeMessages();
  ASSERT_THAT(asked, SizeIs(1));
  EXPECT_EQ(asked[0].text, "Are you sure you want to delete the selected Segment(s)?");
  EXPECT_EQ(asked[0].caption, "Delete Segment(s)");
  EXPECT_EQ(asked[0].style, 0x124u);
  EXPECT_EQ(asked[0].answer, msgbox::kAnswerNo);
  EXPECT_EQ(page.Grid().Rows(), 3);
  EXPECT_FALSE(page.TakeChanged());
  OstCommandLineInfo::c_instance.nonInteractive = true;
  page.Form().Press("Delete rows");
  OstCommandLineInfo::c_instance.nonInteractive = false;
  EXPECT_EQ(page.Grid().Rows(), 3);
  EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty()) << "nobody is there to ask";
  page.interaction.Answer(msgbox::kAnswerYes);
  page.Form().Press("Delete rows");
  EXPECT_THAT(page.Colors(), ElementsAre(1));
  EXPECT_EQ(page.Text("Total"), "120.00");
  EXPECT_TRUE(page.TakeChanged());
}

TEST(ColorWheelPage, MovesBlocks) {
  const struct {
    Blocks selected;
    const char* button;
    std::vector<int> colors;
  } moves[] = {{{{2, 3}}, "Move up", {0, 2, 3, 1, 4}},
               {{{0, 0}, {3, 3}}, "Move down", {1, 0, 2, 4, 3}},
               {{{2, 2}, {4, 4}}, "Move to top", {2, 4, 0, 1, 3}},
               {{{0, 1}, {3, 3}}, "Move to bottom", {2, 4, 0, 1, 3}}};
  for (const auto& move : moves) {
    WheelPage page(Rgb() + Segment("White", 0) + Segment("Cyan", 0));
    page.Grid().Select(move.selected);
    page.Form().Press(move.button);
    EXPECT_EQ(page.Colors(), move.colors) << move.button;
    EXPECT_TRUE(page.TakeChanged());
    EXPECT_TRUE(page.Apply());
    page.Reopen();
    EXPECT_EQ(page.Colors(), move.colors) << move.button;
  }
}

/// What the data say, row by row, is what the grid shows.
void ExpectInStep(WheelPage& page) {
  const ColorWheelData data = page.Now();
  automation::Table grid = page.Grid();
  ASSERT_EQ(grid.Rows(), static_cast<int>(data.Segments.size()));
  ASSERT_EQ(data.FilterSpecs.size(), data.Segments.size());
  for (std::size_t i = 0; i < data.Segments.size(); ++i) {
    ASSERT_EQ(data.FilterSpecs[i].Color, data.Segments[i].Color);
    // A filter that tells whose it is: its peak goes with the segment's size.
    ASSERT_EQ(data.FilterSpecs[i].PeakTransmission, data.Segments[i].Size / 512);
    const color_wheel::RowTexts texts =
        color_wheel::ShownRow(data.Segments[i], data.FilterSpecs[i]);
    for (int column = 0; column < grid.Columns(); ++column) {
      ASSERT_EQ(grid.Cell(static_cast<int>(i), column).toStdString(),
                texts[static_cast<std::size_t>(column)]);
    }
  }
  ASSERT_EQ(page.Text("Total"), color_wheel::TotalText(color_wheel::CountedTotal(data.Segments)));
}

// Whatever a person does in whatever order, segments, filters and rows stay together.
TEST(ColorWheelPage, StaysInStepThroughRandomOperations) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  WheelPage page("", kRates);
  automation::Table grid = page.Grid();
  const char* const buttons[] = {"Copy rows", "Delete rows", "Move to top",
                                 "Move up",   "Move down",   "Move to bottom"};
  const char* const colors[] = {"Red", "Green", "Blue", "White", "Cyan"};
  for (int step = 0; step < 150; ++step) {
    const int rows = grid.Rows();
    const auto any = [&](int below) {
      return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    const int what = rows == 0 ? 0 : any(10);
    if (what < 3 && rows < 20) {
      page.Form().Press("Add row");
      const double size = 9 * any(40);
      grid.SetCell(rows, 0, colors[any(5)]);
      grid.SetCell(rows, 1, QString::number(size));
      grid.SetCell(rows, 2, QString::number(size / 512, 'g', 17));
    } else if (what < 5) {
      grid.SetCell(any(rows), 0, colors[any(5)]);
    } else {
      const int first = any(rows), last = first + any(rows - first);
      grid.Select(any(2) && first > 1 ? Blocks{{0, 0}, {first, last}} : Blocks{{first, last}});
      const char* button = buttons[rows > 30 ? 1 : any(6)];
      if (!page.Control(button).Enabled()) continue;
      page.interaction.Answer(msgbox::kAnswerYes);
      page.Form().Press(button);
      (void)page.interaction.TakeMessages();
    }
    ASSERT_NO_FATAL_FAILURE(ExpectInStep(page)) << step;
  }
  const ColorWheelData before = page.Now();
  ASSERT_TRUE(page.Apply());
  page.Reopen();
  EXPECT_EQ(page.Now(), before);
}

TEST(ColorWheelPage, TheDialogEditsGainsAndMeasuredEfficiencies) {
  WheelPage page(Rgb() + Segment("Black", 5) + Segment("Red", 0) + Segment("Blue", 9));
  page.interaction.OnDialog([&](automation::Form& dialog) {
    EXPECT_EQ(dialog.Title(), "Advanced");
    automation::Table gains = dialog.GetTable("Segment Gains");
    automation::Table pwm = dialog.GetTable("PWM Efficiences");
    EXPECT_EQ(gains.Headers(), (QStringList{"Color", "Segment", "Spoke"}));
    EXPECT_EQ(gains.Rows(), 6);
    EXPECT_EQ(gains.Cell(0, 0), "Red");
    EXPECT_EQ(pwm.Cell(0, 1), "1.000");
    EXPECT_EQ(pwm.Cell(3, 0), "") << "a color that does not count";
    EXPECT_EQ(pwm.Cell(5, 1), "") << "behind a segment without a size";
    EXPECT_FALSE(gains.Editable(3, 1));
    EXPECT_TRUE(dialog.GetControl("Use Modeled").Checked());
    EXPECT_FALSE(pwm.Editable(0, 1));
    EXPECT_EQ(pwm.Background(0, 1), "#d4d4d4");
    gains.SetCell(1, 1, "2.345");
    gains.SetCell(1, 2, "5");
    for (const char* none : {"x", ""}) gains.SetCell(0, 1, none);
    EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty());
    for (const char* outside : {"5.01", "-0.1"}) gains.SetCell(0, 1, outside);
    for (const auto& refused : page.interaction.TakeMessages()) {
      EXPECT_EQ(refused.text, "This value should be in the range - 0.000 to 5.000");
      EXPECT_EQ(refused.caption, "Warning");
      EXPECT_EQ(refused.style, 0x30u);
    }
    EXPECT_EQ(gains.Cell(0, 1).toDouble(), 1);
    dialog.Press("Use Measured");
    EXPECT_TRUE(pwm.Editable(0, 1));
    EXPECT_EQ(gains.Cell(1, 1).toDouble(), 2.35);
    pwm.SetCell(2, 2, "1.001");
    EXPECT_EQ(page.interaction.TakeMessages().at(0).text,
              "This value should be in the range - 0.000 to 1.000");
    pwm.SetCell(2, 2, "0.875");
    dialog.Press("OK");
  });
  page.Form().Press("Details");
  page.interaction.RethrowFailure();
  const ColorWheelData data = page.Now();
  EXPECT_EQ(data.Segments[1].SegmentGain, 2.345);
  EXPECT_EQ(data.Segments[1].SpokeGain, 5);
  EXPECT_EQ(data.Segments[0].SegmentGain, 1);
  EXPECT_EQ(data.Segments[2].MeasuredSpokePwm, 0.875);
  EXPECT_EQ(data.Segments[2].ModeledSpokePwm, 1);
  EXPECT_FALSE(data.UseModeledPwm);
  EXPECT_TRUE(page.TakeChanged());
  // The rows still find their segments.
  page.Grid().Select({{2, 2}});
  page.Form().Press("Move to top");
  EXPECT_EQ(page.Now().Segments[0].MeasuredSpokePwm, 0.875);
}

TEST(ColorWheelPage, ACancelledOrUntouchedDialogChangesNothing) {
  WheelPage page;
  const ColorWheelData before = page.Now();
  for (const char* end : {"Cancel", "OK"}) {
    page.interaction.OnDialog([&](automation::Form& dialog) {
      if (*end == 'C') dialog.GetTable("Segment Gains").SetCell(0, 1, "3");
      dialog.Press(end);
    });
    page.Form().Press("Details");
    page.interaction.RethrowFailure();
    EXPECT_EQ(page.Now(), before);
    EXPECT_FALSE(page.TakeChanged());
  }
}

TEST(ColorWheelPage, ThePictureSelectsAndFollows) {
  WheelPage page;
  QWidget& wheel = page.Control("Wheel").Widget();
  EXPECT_THAT(page.Text("Wheel"), HasSubstr("full turn"));
  // The middle of the second third lies below the middle of the picture, to the right of nothing.
  const QPoint middle = wheel.rect().center();
  const int radius = std::min(wheel.width(), wheel.height()) / 3;
  QTest::mouseClick(&wheel, Qt::LeftButton, {}, middle + QPoint(0, radius));
  EXPECT_EQ(page.Grid().Selected(), (Blocks{{1, 1}}));
  QTest::keyClick(&wheel, Qt::Key_Right);
  EXPECT_EQ(page.Grid().Selected(), (Blocks{{2, 2}}));
  page.Grid().SetCell(2, 1, "121");
  EXPECT_THAT(page.Text("Wheel"), HasSubstr("Blue 121.00"));
  EXPECT_THAT(page.Text("Wheel"), HasSubstr("1.00\u00B0 over"));
  page.Grid().SetCell(2, 1, "20");
  EXPECT_THAT(page.Text("Wheel"), HasSubstr("100.00\u00B0 open"));
}

TEST(ColorWheelPage, KeepsWhatOthersStoredWithTheirSegments) {
  const std::string segments =
      "<Segment color=\"Red\" degrees=\"120\" serial=\"R1\"><Coating layers=\"7\"/></Segment>"
      "<Segment color=\"Green\" degrees=\"120\" serial=\"G1\"/>"
      "<Segment color=\"Red\" degrees=\"120\" serial=\"R2\"/>";
  WheelPage page(segments);
  page.Grid().Select({{1, 1}});
  page.Form().Press("Move to top");
  page.Grid().SetCell(2, 0, "White");
  ASSERT_TRUE(page.Apply());
  const std::string text = page.Database();
  EXPECT_THAT(text, HasSubstr("color=\"Green\" degrees=\"120\" serial=\"G1\""));
  EXPECT_THAT(text,
              testing::ContainsRegex(
                  "color=\"Red\" degrees=\"120\" serial=\"R1\">\n[^S]*<Coating layers=\"7\"/>"));
  EXPECT_THAT(text, HasSubstr("color=\"White\" degrees=\"120\" serial=\"R2\""));
}

}  // namespace
