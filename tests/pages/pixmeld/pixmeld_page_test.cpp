// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "host/gui/page_host.h"
#include "host/gui/tool.h"
#include "host/gui/tool_property_page.h"
#include "host/project/run_time_db.h"
#include "support/open_project.h"

namespace {

constexpr const char* kDatabase =
    "<RunTimeDB>\n"
    "  <Pixmeld>\n"
    "    <StartOfFirstSubframe degrees=\"12.345\" note=\"measured\"/>\n"
    "    <SubframeSignalLatency microseconds=\"180\"/>\n"
    "    <Mount screws=\"4\"/>\n"
    "  </Pixmeld>\n"
    "</RunTimeDB>\n";

class PixmeldPageTest : public testing::Test {
 protected:
  QLineEdit& Box(const char* name) {
    QWidget* window = project_.Session().Pages().Open("PixmeldPage").Window();
    for (auto* box : window->findChildren<QLineEdit*>()) {
      if (box->accessibleName() == QLatin1String(name)) return *box;
    }
    throw std::runtime_error(name);
  }
  void Type(const char* name, const QString& text) {
    Box(name).selectAll();
    QTest::keyClicks(&Box(name), text);
  }
  bool Apply() { return project_.Session().Pages().Apply("PixmeldPage"); }
  bool Changed() { return project_.Session().Tool().NeedToSave(); }

  test::OpenProject project_{kDatabase};
};

TEST_F(PixmeldPageTest, ShowsTwoDecimalsAndTakesNothingThatNobodyEdited) {
  EXPECT_EQ(Box("Start of 1st Subframe").text(), "12.35");
  EXPECT_EQ(Box("Actuator Switch Time").text(), "0.00");
  EXPECT_TRUE(Apply());
  EXPECT_FALSE(Changed());
  // Typing the shown text again is no edit either: the stored digits stay.
  Type("Start of 1st Subframe", "12.35");
  EXPECT_TRUE(Apply());
  EXPECT_FALSE(Changed());
}

TEST_F(PixmeldPageTest, ApplyingUntouchedAddsOnlyWhatIsMissing) {
  EXPECT_TRUE(Apply());
  const std::string text = project_.Session().Database().Text();
  EXPECT_THAT(text,
              testing::HasSubstr("<StartOfFirstSubframe degrees=\"12.345\" note=\"measured\"/>"));
  EXPECT_THAT(text, testing::HasSubstr("<Mount screws=\"4\"/>\n    <ActuatorSwitchTime "
                                       "microseconds=\"0\"/>\n  </Pixmeld>"));
}

struct Entry {
  const char* box;
  const char* text;
  const char* prompt;  ///< empty: taken
};

void PrintTo(const Entry& entry, std::ostream* out) { *out << entry.box << ": " << entry.text; }

class PixmeldEntries : public PixmeldPageTest, public testing::WithParamInterface<Entry> {};

TEST_P(PixmeldEntries, AreTakenWholeOrRefusedWithOneMessage) {
  const Entry& entry = GetParam();
  const std::string before = project_.Session().Database().Text();
  Type("Subframe Signal Latency", "7");
  Type(entry.box, entry.text);
  const bool refused = *entry.prompt != 0;
  EXPECT_EQ(Apply(), !refused);
  EXPECT_EQ(Changed(), !refused);
  const auto boxes = project_.TakeBoxes();
  ASSERT_EQ(boxes.size(), refused ? 1u : 0u);
  if (!refused) return;
  EXPECT_EQ(boxes[0].text, entry.prompt);
  EXPECT_EQ(boxes[0].style, 48u);
  EXPECT_EQ(Box(entry.box).text(), entry.text);
  EXPECT_EQ(project_.Session().Database().Text(), before);
}

constexpr const char* kAngle = "Please enter a number between 0 and 360.";
constexpr const char* kTime = "Please enter a number between 0 and 10000.";
INSTANTIATE_TEST_SUITE_P(
    All, PixmeldEntries,
    testing::Values(Entry{"Start of 1st Subframe", "360", ""},
                    Entry{"Start of 1st Subframe", "360.01", kAngle},
                    Entry{"Start of 1st Subframe", "-0.01", kAngle},
                    Entry{"Start of 1st Subframe", "12,5", "Please enter a number."},
                    Entry{"Start of 1st Subframe", "nan", "Please enter a number."},
                    Entry{"Actuator Switch Time", "10000", ""},
                    Entry{"Actuator Switch Time", "10000.5", kTime},
                    Entry{"Actuator Switch Time", " ", "Please enter a number."},
                    Entry{"Subframe Signal Latency", "-0.5", kTime}));

TEST_F(PixmeldPageTest, ValuesAreFoundAgain) {
  Type("Start of 1st Subframe", "12.5");
  ASSERT_TRUE(Apply());
  EXPECT_EQ(Box("Start of 1st Subframe").text(), "12.50");
  EXPECT_TRUE(project_.Session().Tool().NeedToBuild());
  ASSERT_TRUE(project_.Session().Tool().Save());
  project_.Restart();
  EXPECT_EQ(Box("Start of 1st Subframe").text(), "12.50");
}

}  // namespace
