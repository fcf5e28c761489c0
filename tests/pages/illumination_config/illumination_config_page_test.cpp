// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/illumination_config_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "support/page_form.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Blocks = TableAccess::Blocks;

constexpr const char* kTooMuch = "Invalid Degree segmentation. Size overflows allowed 360 degrees.";
constexpr const char* kWheelControls[] = {"Add segment",    "Copy segments", "Delete segments",
                                          "Move to top",    "Move up",       "Move down",
                                          "Move to bottom", "Spoke Size"};

std::string Wheel(int number, double first) {
  return "<Wheel number=\"" + std::to_string(number) + "\" serial=\"W" + std::to_string(number) +
         "\"><SpokeSize degrees=\"12.3456\"/><PwmEfficiencies use=\"measured\"/><Segments>"
         "<Segment color=\"Yellow\" degrees=\"" +
         std::to_string(first) +
         "12\"><Gain segment=\"2\" spoke=\"3\"/></Segment>"
         "<Segment color=\"NDRed\" degrees=\"100\"/></Segments></Wheel>";
}

std::string WithSources(const std::string& sources, const std::string& wheels = {}) {
  return "<RunTimeDB><IlluminationConfiguration><Sources>" + sources + "</Sources><Wheels>" +
         wheels + "</Wheels></IlluminationConfiguration></RunTimeDB>";
}

/// All eight slots; the wheels do not stand in the order of their sources.
std::string Full() {
  std::string sources;
  const char* const colors[] = {"Red",  "Green",   "Blue",  "Yellow",
                                "Cyan", "Magenta", "White", "Red"};
  for (int slot = 1; slot <= 8; ++slot) {
    sources += "<Source slot=\"" + std::to_string(slot) + "\" kind=\"" +
               (slot % 2 ? "led" : "laser") + "\" color=\"" + colors[slot - 1] + "\"";
    if (slot % 3 == 2) sources += " wheel=\"" + std::to_string(slot / 3 + 1) + "\"";
    sources += " enableDelayMicroseconds=\"" + std::to_string(slot) + "\"/>";
  }
  return WithSources(sources, Wheel(3, 203) + Wheel(1, 201) + Wheel(2, 202));
}

struct SourcePage : test::PageForm<IlluminationConfigurationData> {
  explicit SourcePage(const std::string& database) : PageForm("IlluminatorConfigPage", database) {
    (void)Form();
  }
  automation::Table Sources() { return Table("Illumination Sources"); }
  automation::Table Segments() { return Table("Wheel Details"); }
  std::string TakeTexts() {
    std::string texts;
    for (const auto& message : interaction.TakeMessages()) {
      EXPECT_EQ(message.style, 0x30u);
      texts += message.text;
    }
    return texts;
  }
  bool WheelEnabled() {
    const bool enabled = Control(kWheelControls[0]).Enabled();
    for (const char* name : kWheelControls) EXPECT_EQ(Control(name).Enabled(), enabled) << name;
    EXPECT_EQ(Control("Wheel Details").Enabled(), enabled);
    return enabled;
  }
};

TEST(IlluminationConfigPage, ShowsTheSourcesOfUsedSlots) {
  SourcePage page(
      WithSources("<Source slot=\"3\" kind=\"led\" color=\"Yellow\"/>"
                  "<Source slot=\"5\" kind=\"laser\" color=\"IR\" marker=\"3\"/>"));
  EXPECT_EQ(page.Sources().Headers(),
            (QStringList{"Illumination Source", "Base Color", "Illuminates Via Wheel?"}));
  ASSERT_EQ(page.Sources().Rows(), 1);
  EXPECT_EQ(page.Sources().Cell(0, 0), "LED");
  EXPECT_EQ(page.Sources().Cell(0, 1), "Yellow");
  EXPECT_FALSE(page.Sources().Checked(0, 2));
  EXPECT_EQ(page.Sources().Choices(0, 0), (QStringList{"LASER", "LED"}));
  EXPECT_EQ(page.Sources().Choices(0, 1),
            (QStringList{"Red", "Green", "Blue", "Yellow", "Magenta", "Cyan", "White"}));
  EXPECT_FALSE(page.WheelEnabled());
  EXPECT_EQ(page.Text("Total Degrees"), "0.0");
}

TEST(IlluminationConfigPage, EightSlotsWithSeveralWheelsReloadWhole) {
  SourcePage page(Full());
  const IlluminationConfigurationData before = page.Now();
  const char* const firstDegrees[] = {"201.00", "202.00", "203.00"};
  for (int i = 0; i < 3; ++i) {
    page.Sources().ClickCell(1 + 3 * i, 0);
    ASSERT_EQ(page.Segments().Rows(), 2);
    EXPECT_EQ(page.Segments().Cell(0, 0), "Yellow");
    EXPECT_EQ(page.Segments().Cell(0, 1), firstDegrees[i]);
    EXPECT_EQ(page.Segments().Cell(1, 0), "NDRed");
    EXPECT_EQ(page.Text("Spoke Size"), "12.35");
    EXPECT_TRUE(page.WheelEnabled());
  }
  page.Sources().ClickCell(0, 0);
  EXPECT_FALSE(page.WheelEnabled());
  QTest::keyClick(&page.Control("Illumination Sources").Widget(), Qt::Key_Down);
  EXPECT_TRUE(page.WheelEnabled()) << "keys select sources too";
  EXPECT_FALSE(page.Control("Add source").Enabled()) << "there is no ninth slot";
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_TRUE(page.Apply());
  // Wheels come into the order of their sources; nothing else changes.
  const IlluminationConfigurationData after = page.Now();
  EXPECT_EQ(after.Sources, before.Sources);
  ASSERT_THAT(after.Wheels, SizeIs(3));
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(after.Wheels[i], before.Wheels[(i + 1) % 3]);
  page.project.Session().Tool().Save();
  page.project.Restart();
  EXPECT_EQ(page.Now(), after);
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.project.Session().Database().Modified());
}

TEST(IlluminationConfigPage, ATickMakesAWheelAndItsRemovalDestroysIt) {
  SourcePage page(WithSources("<Source slot=\"1\" kind=\"led\" color=\"Red\"/>"));
  page.Sources().ClickCell(0, 0);
  EXPECT_FALSE(page.WheelEnabled());
  EXPECT_FALSE(page.TakeChanged());
  page.Sources().Toggle(0, 2);
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_TRUE(page.WheelEnabled());
  EXPECT_EQ(page.Text("Spoke Size"), "18.00");
  EXPECT_EQ(page.Segments().Rows(), 0);
  EXPECT_EQ(page.Text("Total Degrees"), "0.00");
  page.Form().Press("Add segment");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Segments().Cell(0, 0), "White");
  EXPECT_EQ(page.Segments().Cell(0, 1).toDouble(), 0);
  page.Sources().Toggle(0, 2);
  EXPECT_FALSE(page.WheelEnabled());
  EXPECT_EQ(page.Segments().Rows(), 0);
  EXPECT_EQ(page.Text("Total Degrees"), "0.0");
  page.Sources().Toggle(0, 2);
  EXPECT_EQ(page.Segments().Rows(), 0) << "the wheel is a new one";
}

TEST(IlluminationConfigPage, AWheelMadeHereKeepsItsDigitsAndReloadsAsItWasStored) {
  SourcePage page(WithSources("<Source slot=\"1\" kind=\"led\" color=\"Red\"/>"));
  page.Sources().Toggle(0, 2);
  // A seventh of a turn cannot be shown: seven rounded ones are more than a turn.
  for (int row = 0; row < 7; ++row) page.Form().Press("Add segment");
  for (int row = 0; row < 6; ++row) page.Segments().SetCell(row, 1, "51.428571");
  page.Segments().Select({{0, 0}});
  page.Form().Press("Copy segments");
  page.Segments().Select({{0, 0}, {6, 6}});
  page.Form().Press("Delete segments");
  page.Segments().Select({{5, 5}});
  page.Form().Press("Copy segments");
  EXPECT_EQ(page.Segments().Cell(6, 1), "51.43");
  EXPECT_EQ(page.Text("Total Degrees"), "360.00");
  EXPECT_EQ(page.TakeTexts(), "");
  EXPECT_TRUE(page.Apply());
  const IlluminationConfigurationData stored = page.Now();
  for (const SSegGeom& segment : stored.Wheels[0].Segments) EXPECT_EQ(segment.Size, 51.428571);
  page.project.Session().Tool().Save();
  page.project.Restart();
  EXPECT_EQ(page.Now(), stored);
  page.Sources().ClickCell(0, 0);
  EXPECT_EQ(page.TakeTexts(), "") << "it holds a turn, whatever the cells add up to";
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.project.Session().Database().Modified());
}

TEST(IlluminationConfigPage, ATotalOfMoreThanATurnIsSaidAndStored) {
  SourcePage page(WithSources("<Source slot=\"1\" color=\"Blue\" wheel=\"4\"/>", Wheel(4, 200)));
  page.Sources().ClickCell(0, 0);
  EXPECT_EQ(page.Text("Total Degrees"), "300.00");
  EXPECT_EQ(page.TakeTexts(), "");
  page.Segments().SetCell(1, 1, "200");
  EXPECT_EQ(page.TakeTexts(), kTooMuch);
  EXPECT_EQ(page.Text("Total Degrees"), "400.00");
  EXPECT_EQ(page.Now().Wheels[0].Segments[1].Size, 100) << "stored when the page is applied";
  EXPECT_TRUE(page.Apply());
  EXPECT_EQ(page.Now().Wheels[0].Segments[1].Size, 200);
  page.Segments().SetCell(1, 1, "-200.5");
  EXPECT_EQ(page.TakeTexts(), kTooMuch);
  page.Segments().SetCell(1, 1, "wide");
  EXPECT_EQ(page.TakeTexts(), "");
  EXPECT_EQ(page.Text("Total Degrees"), "200.00");
}

TEST(IlluminationConfigPage, TheSpokeSizeIsTakenAsItIsTyped) {
  SourcePage page(WithSources("<Source slot=\"1\" color=\"Blue\" wheel=\"4\"/>", Wheel(4, 200)));
  page.Sources().ClickCell(0, 0);
  EXPECT_TRUE(page.Apply());
  EXPECT_EQ(page.Now().Wheels[0].SpokeSize, 12.3456) << "shown rounded, not edited";
  EXPECT_FALSE(page.TakeChanged());
  const struct {
    const char* text;
    double stored;
  } entries[] = {{"9.5", 9.5}, {"abc", 0}, {"-3", -3}, {"7 mm", 7}};
  for (const auto& [text, stored] : entries) {
    page.Control("Spoke Size").SetText(text);
    EXPECT_TRUE(page.TakeChanged()) << text;
    EXPECT_TRUE(page.Apply());
    EXPECT_EQ(page.Now().Wheels[0].SpokeSize, stored) << text;
  }
}

TEST(IlluminationConfigPage, SegmentsAreAddedCopiedDeletedAndMoved) {
  SourcePage page(WithSources("<Source slot=\"1\" color=\"Blue\" wheel=\"4\"/>", Wheel(4, 100)));
  page.Sources().ClickCell(0, 0);
  const auto sizes = [&] {
    EXPECT_TRUE(page.Apply());
    std::vector<double> all;
    const IlluminationConfigurationData data = page.Now();
    for (const SSegGeom& segment : data.Wheels[0].Segments) all.push_back(segment.Size);
    return all;
  };
  page.Segments().Select({{0, 0}});
  page.Form().Press("Copy segments");
  EXPECT_THAT(sizes(), ElementsAre(100.00000012, 100, 100.00000012)) << "with all its digits";
  page.Segments().SetCell(2, 1, "30");
  EXPECT_EQ(page.Text("Total Degrees"), "230.00");
  page.Segments().Select({{2, 2}});
  page.Form().Press("Move to top");
  EXPECT_THAT(sizes(), ElementsAre(30, 100.00000012, 100));
  page.Form().Press("Move down");
  page.Form().Press("Move to bottom");
  page.Form().Press("Move up");
  EXPECT_THAT(sizes(), ElementsAre(100.00000012, 30, 100));
  EXPECT_TRUE(page.TakeChanged());
  page.Segments().Select({{0, 0}, {2, 2}});
  page.Form().Press("Delete segments");
  EXPECT_THAT(sizes(), ElementsAre(30));
  EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty()) << "deletes without asking";
  page.Segments().SetCell(0, 0, "Cyan");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_THAT(page.Text("Wheel"), HasSubstr("Cyan 30.00"));
}

TEST(IlluminationConfigPage, SourcesAreAddedUpToEightAndDeleted) {
  SourcePage page(
      WithSources("<Source slot=\"1\" color=\"Blue\" wheel=\"1\"/>"
                  "<Source slot=\"2\" color=\"Red\" wheel=\"2\"/>",
                  Wheel(1, 201) + Wheel(2, 202)));
  page.Form().Press("Add source");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Sources().Cell(2, 0), "LASER");
  EXPECT_EQ(page.Sources().Cell(2, 1), "White");
  EXPECT_FALSE(page.Sources().Checked(2, 2));
  for (int i = 3; i < 8; ++i) page.Form().Press("Add source");
  EXPECT_FALSE(page.Control("Add source").Enabled());
  page.Sources().Select({{0, 0}, {4, 7}});
  page.Form().Press("Delete source");
  EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty());
  EXPECT_TRUE(page.Control("Add source").Enabled());
  page.Sources().SetCell(2, 0, "LED");
  EXPECT_TRUE(page.Apply());
  const IlluminationConfigurationData data = page.Now();
  EXPECT_EQ(data.Sources[0].BaseColor, IllumCharacteristics::kRed);
  EXPECT_EQ(data.Sources[0].WheelNumber, 1) << "wheels are numbered anew";
  EXPECT_EQ(data.Sources[1].IsLed, 0);
  EXPECT_EQ(data.Sources[1].BaseColor, IllumCharacteristics::kWhite);
  EXPECT_EQ(data.Sources[2].IsLed, 1);
  EXPECT_EQ(data.Sources[3].SlotMarker, IllumCharacteristics::kFreeSlot);
  ASSERT_THAT(data.Wheels, SizeIs(1));
  EXPECT_EQ(data.Wheels[0].Segments[0].Size, 202.00000012);
  EXPECT_EQ(data.WheelSlots, 2);
  // No source is left: nothing of a wheel is shown.
  page.Sources().Select({{0, 2}});
  page.Form().Press("Delete source");
  EXPECT_FALSE(page.WheelEnabled());
  EXPECT_TRUE(page.Apply());
  EXPECT_EQ(page.Now(), IlluminationConfigurationData());
}

TEST(IlluminationConfigPage, TheGridsLiveOnUntilOtherDataCome) {
  const std::string one = WithSources("<Source slot=\"1\" kind=\"laser\" color=\"Blue\"/>");
  SourcePage page(one);
  page.Form().Press("Add source");
  page.Reopen();
  EXPECT_EQ(page.Sources().Rows(), 2);
  page.project.Session().Pages().Revert("IlluminatorConfigPage");
  EXPECT_EQ(page.Sources().Rows(), 1);
  // Data from elsewhere take the place of what is shown.
  auto& services =
      Framework::PageHost::Services(page.project.Session().Pages().Open("IlluminatorConfigPage"));
  const auto exported = services.ExportData();
  for (const bool applied : {false, true}) {
    page.Sources().SetCell(0, 1, "Cyan");
    EXPECT_TRUE(!applied || page.Apply());
    services.ImportData(exported);
    EXPECT_EQ(page.Sources().Cell(0, 1), "Blue");
  }
}

TEST(IlluminationConfigPage, WhatOthersStoredWithAWheelFollowsItsNewNumber) {
  SourcePage page(Full());
  page.Sources().Select({{1, 1}});
  page.Form().Press("Delete source");
  page.Sources().ClickCell(6, 0);
  page.Segments().SetCell(0, 1, "17");
  ASSERT_TRUE(page.Apply());
  const std::string text = page.Database();
  EXPECT_THAT(text, HasSubstr("number=\"1\" serial=\"W2\""));
  EXPECT_THAT(text, testing::Not(HasSubstr("serial=\"W1\""))) << "its wheel is gone";
  ASSERT_TRUE(page.Apply());
  EXPECT_EQ(page.Database(), text);
}

TEST(IlluminationConfigPage, ThePictureSelectsSegments) {
  SourcePage page(WithSources("<Source slot=\"1\" color=\"Blue\" wheel=\"4\"/>", Wheel(4, 180)));
  page.Sources().ClickCell(0, 0);
  QWidget& wheel = page.Control("Wheel").Widget();
  const int radius = std::min(wheel.width(), wheel.height()) / 3;
  QTest::mouseClick(&wheel, Qt::LeftButton, {}, wheel.rect().center() + QPoint(radius, 0));
  EXPECT_EQ(page.Segments().Selected(), (Blocks{{0, 0}}));
  QTest::keyClick(&wheel, Qt::Key_End);
  EXPECT_EQ(page.Segments().Selected(), (Blocks{{1, 1}}));
}

TEST(IlluminationConfigPage, KeepsWhatOthersStored) {
  const std::string sources =
      "<Source slot=\"1\" kind=\"led\" color=\"Red\" serial=\"R\"/>"
      "<Source slot=\"2\" kind=\"laser\" color=\"Blue\" serial=\"B\"><Mount/></Source>";
  SourcePage page(WithSources(sources));
  page.Sources().Select({{0, 0}});
  page.Form().Press("Delete source");
  ASSERT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("<Mount/>"));
  EXPECT_THAT(page.Database(), HasSubstr("serial=\"B\""));
  EXPECT_THAT(page.Database(), testing::Not(HasSubstr("serial=\"R\"")));
}

}  // namespace
