// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/illuminators_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>

#include "host/gui/message_box.h"
#include "model/illuminators_page_data.h"
#include "support/page_form.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr const char* kCyanAndIR =
    R"(<Illuminator name="Red" enableDelayMicroseconds="12.3456" bench="3"/>)"
    R"(<Illuminator name="Cyan" allowed="true" enableDelayMicroseconds="7.0004"/>)"
    R"(<Illuminator name="IR" allowed="true"/><Board revision="B"/>)";
constexpr const char* kAll =
    R"(<Illuminator name="Yellow" allowed="1"/><Illuminator name="Cyan" allowed="1"/>)"
    R"(<Illuminator name="Magenta" allowed="1"/><Illuminator name="White" allowed="1"/>)"
    R"(<Illuminator name="IR" allowed="1"/>)";

struct Page : test::PageForm<IlluminatorsPageData> {
  explicit Page(const std::string& illuminators = kCyanAndIR, const std::string& keys = {})
      : PageForm("IlluminatorsPage",
                 "<RunTimeDB><Illuminators>" + illuminators + "</Illuminators></RunTimeDB>", keys) {
    (void)Form();
  }
  automation::Control At(int row, const std::string& part) {
    return Control(("Row " + std::to_string(row) + "/" + part).c_str());
  }
  automation::Control List(int row) { return At(row, "Illuminator"); }
  std::string Time(int row, const std::string& part) { return At(row, part).Text().toStdString(); }
  QColor Color(int row, QPalette::ColorRole role) {
    return List(row).Widget().palette().color(role);
  }
};

QStringList Entries(std::initializer_list<const char*> texts) {
  QStringList list;
  for (const char* text : texts) list << QString::fromLatin1(text);
  return list;
}

TEST(IlluminatorsPage, OffersWhatIsAllowedAndInNoOtherRow) {
  Page page;
  EXPECT_TRUE(page.List(4).Visible());
  EXPECT_FALSE(page.List(5).Visible());
  EXPECT_FALSE(page.At(7, "Fall Margin").Visible());
  for (const int row : {3, 4}) {
    EXPECT_EQ(page.List(row).Items(), Entries({"", "Cyan", "IR"}));
    EXPECT_FALSE(page.At(row, "Enable Delay").Enabled());
  }
  page.List(3).Choose("Cyan");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.List(3).Items(), Entries({"", "Cyan", "IR"}));
  EXPECT_EQ(page.List(4).Items(), Entries({"", "IR"}));
  EXPECT_TRUE(page.At(3, "Fall Margin").Enabled());
  EXPECT_EQ(page.Time(3, "Enable Delay"), "7.00");
  EXPECT_EQ(page.Now().characteristics[4].Row, 3);
  page.List(3).Choose("Cyan");
  EXPECT_FALSE(page.TakeChanged());
}

TEST(IlluminatorsPage, AnIlluminatorThatLeavesItsRowKeepsItsTimes) {
  Page page;
  page.List(3).Choose("Cyan");
  page.At(3, "Fall Margin").SetText("2.5");
  page.List(3).Choose("");
  IlluminatorsPageData data = page.Now();
  EXPECT_EQ(data.characteristics[4].Row, -1);
  EXPECT_FALSE(page.At(3, "Fall Margin").Enabled());
  EXPECT_EQ(page.Time(3, "Fall Margin"), "0.00");
  page.List(4).Choose("Cyan");
  EXPECT_EQ(page.Time(4, "Fall Margin"), "2.50");
  data = page.Now();
  EXPECT_EQ(data.characteristics[4].EnableDelay, 7.0004) << "never edited";
  EXPECT_EQ(data.characteristics[4].Row, 4);
  // From one illuminator to another in one step.
  page.List(4).Choose("IR");
  EXPECT_EQ(page.Time(4, "Fall Margin"), "0.00");
  EXPECT_EQ(page.Now().characteristics[4].FallMargin, 2.5);
  EXPECT_EQ(page.Now().characteristics[4].Row, -1);
}

struct Entry {
  const char* text;
  const char* prompt;  ///< empty: taken
  double stored;
};

void PrintTo(const Entry& entry, std::ostream* out) {
  *out << std::string(entry.text).substr(0, 20);
}

class IlluminatorTimes : public testing::TestWithParam<Entry> {};

TEST_P(IlluminatorTimes, AreTakenWhenTheFieldIsLeftOrRefusedOnce) {
  const Entry& entry = GetParam();
  Page page;
  page.At(1, "Disable Delay").SetText("5");
  EXPECT_TRUE(page.TakeChanged());
  page.At(1, "Disable Delay").SetText(entry.text);
  const auto messages = page.interaction.TakeMessages();
  EXPECT_EQ(page.Now().characteristics[1].DisableDelay, entry.stored);
  if (*entry.prompt == 0) {
    EXPECT_THAT(messages, IsEmpty());
    EXPECT_TRUE(page.Apply());
    return;
  }
  ASSERT_THAT(messages, SizeIs(1));
  EXPECT_EQ(messages[0].text, entry.prompt);
  EXPECT_EQ(messages[0].style, msgbox::kIconWarning);
  EXPECT_EQ(page.Time(1, "Disable Delay"), entry.text) << "stays to be mended";
  const auto& box = dynamic_cast<QLineEdit&>(page.At(1, "Disable Delay").Widget());
  EXPECT_TRUE(box.hasFocus());
  EXPECT_EQ(box.selectedText(), box.text()) << "the next key begins a new text";
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_FALSE(page.Apply());
}

constexpr const char* kNumber = "Please enter a number.";
constexpr const char* kRange = "Please enter a number between 0 and 2000.";
const std::string kLong = std::string(398, '0') + ".25";
INSTANTIATE_TEST_SUITE_P(All, IlluminatorTimes,
                         testing::Values(Entry{"2000.0", "", 2000}, Entry{"0", "", 0},
                                         Entry{"1e2", "", 100}, Entry{"2000.01", kRange, 5},
                                         Entry{"-0.01", kRange, 5}, Entry{"inf", kNumber, 5},
                                         Entry{"1,5", kNumber, 5}, Entry{"", kNumber, 5},
                                         Entry{kLong.c_str(), kNumber, 5}));

// What stands before the refused time is stored, the rest keeps its text until it is mended.
TEST(IlluminatorsPage, ARefusedTimeEndsTheExchange) {
  Page page(std::string(kCyanAndIR) + R"(<Illuminator name="White" allowed="true" row="4"/>)");
  page.At(0, "Fall Margin").Type("x");
  page.List(3).Choose("IR");
  EXPECT_THAT(page.interaction.TakeMessages(), Not(IsEmpty()));
  EXPECT_EQ(page.List(3).Text(), "") << "row 0 comes first";
  page.At(0, "Fall Margin").SetText("1");
  page.At(4, "Enable Delay").Type("y");
  page.At(0, "Fall Margin").Widget().setFocus();
  EXPECT_THAT(page.interaction.TakeMessages(), SizeIs(1));
  page.List(3).Choose("IR");
  EXPECT_EQ(page.Now().characteristics[7].Row, 3) << "row 3 comes before row 4";
  EXPECT_THAT(page.Time(4, "Enable Delay"), HasSubstr("y"));
  EXPECT_TRUE(page.TakeChanged());
}

TEST(IlluminatorsPage, LeavingThePageTakesWhatIsBeingTyped) {
  Page page;
  auto& shown = page.project.Session().Pages().Open("IlluminatorsPage");
  page.At(0, "Fall Margin").Type("1");
  EXPECT_EQ(shown.OnKillActive(), 1);
  EXPECT_EQ(page.Now().characteristics[0].FallMargin, 0.001) << "typed behind 0.00";
  page.At(0, "Fall Margin").Type("x");
  EXPECT_EQ(shown.OnKillActive(), 0);
  EXPECT_THAT(page.interaction.TakeMessages(), SizeIs(1));
}

TEST(IlluminatorsPage, TakesNothingThatNobodyEdited) {
  Page page;
  const IlluminatorsPageData before = page.Now();
  EXPECT_EQ(page.Time(0, "Enable Delay"), "12.35");
  page.At(0, "Enable Delay").SetText("12.35");
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_EQ(page.Now(), before);
}

TEST(IlluminatorsPage, ApplyingMendsNothingInSilence) {
  Page wrong(R"(<Illuminator name="Cyan" allowed="1" row="3"/>)"
             R"(<Illuminator name="IR" allowed="1" row="3"/>)");
  EXPECT_EQ(wrong.List(3).Text(), "Cyan");
  EXPECT_TRUE(wrong.Apply());
  EXPECT_FALSE(wrong.TakeChanged());
  EXPECT_EQ(wrong.Now().characteristics[7].Row, 3);
}

TEST(IlluminatorsPage, TheDiagramMovesUpByTheHiddenRows) {
  const auto gap = [](const char* illuminators, int lastRow) {
    Page page(illuminators);
    EXPECT_TRUE(page.List(lastRow).Visible());
    if (lastRow < 7) {
      EXPECT_FALSE(page.List(lastRow + 1).Visible());
    }
    return page.Control("Timing Diagram").Widget().y() -
           page.List(lastRow).Widget().geometry().bottom();
  };
  const int whole = gap(kAll, 7);
  EXPECT_GT(whole, 0);
  EXPECT_EQ(gap(kCyanAndIR, 4), whole);
  EXPECT_EQ(gap("", 2), whole);
}

TEST(IlluminatorsPage, TheDiagramShowsTheRowThatHasTheFocus) {
  Page page;
  const auto words = [&page] { return page.Text("Timing Diagram"); };
  EXPECT_THAT(words(), HasSubstr("Red: the light is on 12.35 usecs after"));
  page.At(1, "Fall Margin").SetText("3.25");
  EXPECT_THAT(words(), HasSubstr("Green: "));
  EXPECT_THAT(words(), HasSubstr("dark 3.25 usecs later"));
  page.List(3).Choose("");
  EXPECT_THAT(words(), HasSubstr("No illuminator"));
  page.List(3).Choose("IR");
  EXPECT_THAT(words(), HasSubstr("IR: "));
}

TEST(IlluminatorsPage, TheDiagramSaysThatATimeCannotBeDrawn) {
  Page wrong(R"(<Illuminator name="Red" enableDelayMicroseconds="-1"/>)");
  EXPECT_THAT(wrong.Text("Timing Diagram"), HasSubstr("out of range"));
  EXPECT_FALSE(wrong.Form().Widget().grab().isNull());
}

TEST(IlluminatorsPage, HasToolTipsWhereRowsAreShown) {
  Page page;
  const std::pair<const char*, const char*> tips[] = {
      {"Illuminator", "Use this combobox to add or remove a non-RGB illuminator."},
      {"Enable Delay", "Enter the enable delay for this illuminator in microseconds."},
      {"Disable Delay", "Enter the disable delay for this illuminator in microseconds."},
      {"Fall Margin", "Enter the fall margin for this illuminator in microseconds."}};
  for (const auto& [part, tip] : tips) {
    const bool isList = std::string(part) == "Illuminator";
    EXPECT_EQ(page.At(0, part).ToolTip(), isList ? "" : tip);
    EXPECT_EQ(page.At(4, part).ToolTip(), tip);
    EXPECT_EQ(page.At(4, part).Widget().toolTipDuration(), 5000);
    EXPECT_EQ(page.At(5, part).ToolTip(), "");
  }
}

TEST(IlluminatorsPage, NamesAreShownInTheirColors) {
  Page page;
  EXPECT_EQ(page.Color(1, QPalette::Base), QColor(128, 255, 128));
  const QColor plain = page.Color(3, QPalette::Button);
  page.List(3).Choose("IR");
  EXPECT_EQ(page.Color(3, QPalette::Button), QColor(208, 208, 208));
  EXPECT_EQ(page.Color(3, QPalette::ButtonText), QColor(Qt::black));
  page.List(3).Choose("");
  EXPECT_EQ(page.Color(3, QPalette::Button), plain);
}

TEST(IlluminatorsPage, TheGlowmatchNoteIsForDevicesThatHaveIt) {
  const auto shown = [](const char* kind, const char* feature) {
    const auto key = [](const std::string& name, const std::string& text) {
      return "<Key name=\"projectclass.device." + name + "\">" + text + "</Key>";
    };
    return Page("", key("kind", kind) + key("glowmatch", feature))
        .Control("Glowmatch Note")
        .Visible();
  };
  EXPECT_TRUE(shown("18", "1"));
  EXPECT_TRUE(shown("21", "1"));
  EXPECT_FALSE(shown("17", "1"));
  EXPECT_FALSE(shown("22", "1"));
  EXPECT_FALSE(shown("18", "0"));
  EXPECT_FALSE(shown("18", "2"));
  EXPECT_FALSE(Page().Control("Glowmatch Note").Visible());
}

TEST(IlluminatorsPage, ApplyingKeepsWhatItDoesNotKnow) {
  Page page;
  page.List(4).Choose("IR");
  page.At(0, "Enable Delay").SetText("3.5");
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(),
              HasSubstr(R"(<Illuminator name="Red" enableDelayMicroseconds="3.5" bench="3")"));
  EXPECT_THAT(page.Database(), HasSubstr(R"(<Board revision="B"/>)"));
  EXPECT_THAT(page.Database(), HasSubstr(R"(<Illuminator name="IR" allowed="true" row="4")"));
  EXPECT_THAT(page.Database(), Not(HasSubstr("Magenta"))) << "nothing to say of it";
  const IlluminatorsPageData applied = page.Now();
  page.Reopen();
  EXPECT_EQ(page.Now(), applied);
}

// Every field of every illuminator comes back from the database, also those the page never shows.
TEST(IlluminatorsPage, EveryStoredValueComesBack) {
  std::string illuminators;
  for (const char* name : {"IR", "White", "Magenta", "Cyan", "Yellow", "Blue", "Green", "Red"}) {
    illuminators += std::string("<Illuminator name=\"") + name +
                    R"(" type="Magenta" allowed="true" row="-1" enableDelayMicroseconds="1.5")"
                    R"( disableDelayMicroseconds="2.5" fallMarginMicroseconds="3.5" marker="1")"
                    R"( color="White" kind="led" wheel="2"/>)";
  }
  Page page(illuminators);
  const IlluminatorsPageData stored = page.Now();
  for (const IllumCharacteristics& each : stored.characteristics) {
    EXPECT_EQ(each.Row, -1);
    EXPECT_EQ(each.Type, IllumCharacteristics::kMagenta);
    EXPECT_EQ(each.EnableDelay + each.DisableDelay * 10 + each.FallMargin * 100, 376.5);
    EXPECT_EQ(each.SlotMarker, 1);
    EXPECT_EQ(each.BaseColor, IllumCharacteristics::kWhite);
    EXPECT_EQ(each.IsLed, 1);
    EXPECT_EQ(each.WheelNumber, 2);
  }
  EXPECT_THAT(stored.allowed, testing::Each(true));
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.project.Session().Database().Modified()) << "says the same as before";
}

}  // namespace
