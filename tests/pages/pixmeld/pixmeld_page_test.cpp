// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/data/pixmeld_control_data.h"
#include "support/page_form.h"

namespace {

constexpr const char* kDatabase =
    "<RunTimeDB>\n"
    "  <Pixmeld>\n"
    "    <StartOfFirstSubframe degrees=\"12.345\" note=\"measured\"/>\n"
    "    <SubframeSignalLatency microseconds=\"180\"/>\n"
    "    <Mount screws=\"4\"/>\n"
    "  </Pixmeld>\n"
    "</RunTimeDB>\n";

struct PixmeldPage : test::PageForm<PixmeldControlData> {
  PixmeldPage() : PageForm("PixmeldPage", kDatabase) {}
};

TEST(PixmeldPage, ShowsTwoDecimalsAndTakesNothingThatNobodyEdited) {
  PixmeldPage page;
  EXPECT_EQ(page.Text("Start of 1st Subframe"), "12.35");
  EXPECT_EQ(page.Text("Actuator Switch Time"), "0.00");
  EXPECT_TRUE(page.Apply());
  // Typing the shown text again is no edit either: the stored digits stay.
  page.Control("Start of 1st Subframe").SetText("12.35");
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
  const std::string text = page.Database();
  EXPECT_THAT(text,
              testing::HasSubstr("<StartOfFirstSubframe degrees=\"12.345\" note=\"measured\"/>"));
  EXPECT_THAT(text, testing::HasSubstr("<Mount screws=\"4\"/>\n    <ActuatorSwitchTime "
                                       "microseconds=\"0\"/>\n  </Pixmeld>"));
}

TEST(PixmeldPage, EntriesAreTakenWholeOrRefusedWithOneMessage) {
  const char* const angle = "Please enter a number between 0 and 360.";
  const char* const time = "Please enter a number between 0 and 10000.";
  const char* const number = "Please enter a number.";
  const struct {
    const char* box;
    const char* text;
    const char* prompt;  ///< null: taken
  } entries[] = {
      {"Start of 1st Subframe", "360", nullptr}, {"Start of 1st Subframe", "360.01", angle},
      {"Start of 1st Subframe", "-0.01", angle}, {"Start of 1st Subframe", "12,5", number},
      {"Start of 1st Subframe", "nan", number},  {"Actuator Switch Time", "10000", nullptr},
      {"Actuator Switch Time", "10000.5", time}, {"Actuator Switch Time", " ", number},
      {"Subframe Signal Latency", "-0.5", time}};
  for (const auto& [box, text, prompt] : entries) {
    SCOPED_TRACE(testing::Message() << box << ": " << text);
    PixmeldPage page;
    const std::string before = page.Database();
    page.Control("Subframe Signal Latency").SetText("7");
    page.Control(box).SetText(text);
    EXPECT_EQ(page.Apply(), !prompt);
    EXPECT_EQ(page.TakeChanged(), !prompt);
    const auto boxes = page.interaction.TakeMessages();
    ASSERT_EQ(boxes.size(), prompt ? 1u : 0u);
    if (!prompt) continue;
    EXPECT_EQ(boxes[0].text, prompt);
    EXPECT_EQ(boxes[0].style, 48u);
    EXPECT_EQ(page.Text(box), text);
    EXPECT_EQ(page.Database(), before);
  }
}

TEST(PixmeldPage, ValuesAreFoundAgain) {
  PixmeldPage page;
  page.Control("Start of 1st Subframe").SetText("12.5");
  ASSERT_TRUE(page.Apply());
  EXPECT_EQ(page.Text("Start of 1st Subframe"), "12.50");
  EXPECT_TRUE(page.project.Session().Tool().NeedToBuild());
  ASSERT_TRUE(page.project.Session().Tool().Save());
  page.project.Restart();
  EXPECT_EQ(page.Now().StartOfFirstSubframe, 12.5);
}

}  // namespace
