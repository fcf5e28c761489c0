// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QEvent>
#include <QTest>

#include "automation/automation_error.h"
#include "model/frame_rates_page_data.h"
#include "pages/frame_rates/coverage_view.h"
#include "support/command.h"
#include "support/page_form.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kPage = "FrameRatesPage";

/// Base, lowest and highest rate, and the most multipliers, as a project writes them.
using Range = std::array<const char*, 4>;

std::string Keys(const std::vector<Range>& ranges) {
  const char* const names[] = {"basehz", "minhz", "maxhz", "maxseqmultiplier"};
  std::string keys;
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    for (std::size_t part = 0; part < 4; ++part) {
      keys += "<Key name=\"projectclass.seqrange.group1.seq" + std::to_string(i + 1) + "." +
              names[part] + "\">" + ranges[i][part] + "</Key>";
    }
  }
  return keys;
}

const std::vector<Range> kExample{Range{"60.0", "47.5", "63", "2"}};
const std::vector<Range> kFour{{"50.00", "47.5", "56.5", "4"},
                               {"60.00", "57", "63", "4"},
                               {"72.00", "69", "76", "3"},
                               {"120.00", "114", "126", "2"}};

struct RatesPage : test::PageForm<SysDefFrameRatesPageData> {
  explicit RatesPage(const std::vector<Range>& ranges, const std::string& stored = {})
      : PageForm(kPage, "<RunTimeDB><FrameRates>" + stored + "</FrameRates></RunTimeDB>",
                 Keys(ranges)) {
    (void)Form();
  }
  automation::Table Ranges() { return Table("Seq Rates"); }
  automation::Table Rates() { return Table("Supported Frame Rates"); }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int row = 0; row < Rates().Rows(); ++row) {
      rows.push_back((Rates().Cell(row, 0) + ' ' + Rates().Cell(row, 1)).toStdString());
    }
    return rows;
  }
  std::string Chosen() {
    std::string chosen;
    for (int row = 0; row < Ranges().Rows(); ++row)
      chosen += Ranges().Cell(row, 1).at(0).toLatin1();
    return chosen;
  }
  frame_rates::CoverageView& Coverage() {
    return dynamic_cast<frame_rates::CoverageView&>(Control("Coverage").Widget());
  }
  /// What the drawing says of the selected bins.
  std::string Highlighted() {
    return Coverage().accessibleDescription().replace('\n', " + ").toStdString();
  }
};

TEST(FrameRatesPage, ShowsTheRatesOfTheDefaultSelection) {
  RatesPage page(kExample);
  EXPECT_EQ(page.Form().Title(), "Frame Rates");
  EXPECT_EQ(page.Ranges().Rows(), 1);
  EXPECT_EQ(page.Ranges().Cell(0, 0), "60.00 Hz (47.50 - 63.00 Hz)");
  EXPECT_EQ(page.Chosen(), "Y");
  EXPECT_TRUE(page.Ranges().Checked(0, 0));
  EXPECT_FALSE(page.Ranges().RowEnabled(0));
  EXPECT_THROW(page.Ranges().Toggle(0, 0), automation::AutomationError);
  EXPECT_TRUE(page.TakeChanged()) << "the default selection is stored";

  EXPECT_EQ(page.Rates().Headers(), QStringList({"Source Frame Rates", "Sequence Sync Mode"}));
  EXPECT_THAT(page.Rows(), ElementsAre("0.00 - 31.50 Hz LEV", "31.50 - 47.50 Hz LIV",
                                       "47.50 - 63.00 Hz LEV", "63.00+ Hz LIV"));
  for (const int column : {0, 1}) {
    EXPECT_EQ(page.Rates().Background(0, column), "#ffffff");
    EXPECT_EQ(page.Rates().Background(1, column), "#cccccc");
    EXPECT_FALSE(page.Rates().Editable(0, column));
  }
  EXPECT_THAT(page.Text("Note"),
              testing::AllOf(StartsWith("Please Note - \nSeq Rates\n- Use List box"),
                             HasSubstr("cannot be deselected\n\nSupported Frame Rates\n"),
                             testing::EndsWith("support the frame rate range  ")));
}

TEST(FrameRatesPage, EachTickStoresTheSelectionAndItsTable) {
  RatesPage page(kFour);
  EXPECT_EQ(page.Chosen(), "NYNN");
  const auto before = page.Rows();
  page.TakeChanged();
  page.Ranges().Toggle(3, 0);
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Chosen(), "NYNY");
  EXPECT_THAT(page.Rows(),
              testing::IsSupersetOf({"57.00 - 63.00 Hz LEV", "114.00 - 126.00 Hz LEV"}));
  page.Ranges().Toggle(0, 0);
  ASSERT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), testing::ContainsRegex("hertz=\"50\"/>.*\n.*hertz=\"60\"/>.*\n"
                                                      ".*hertz=\"120\"/>"));
  EXPECT_THAT(page.Database(), HasSubstr("sequenceRange=\"3\" multiplier=\"1\" sync=\"source\" "
                                         "stereo=\"yes\""));
  auto& pages = page.project.Session().Pages();
  for (const Finding& finding : Framework::PageHost::Services(pages.Open(kPage)).CheckData()) {
    EXPECT_EQ(finding.rule, "frame-rates.shared");
  }
  page.Ranges().Toggle(0, 0);
  page.Ranges().Toggle(3, 0);
  EXPECT_EQ(page.Rows(), before);
  // What was ticked and not applied is gone when the page is read anew.
  page.Reopen();
  EXPECT_EQ(page.Chosen(), "YYNY");
}

// Its item cannot be ticked: nobody could choose it again.
TEST(FrameRatesPage, ARevertToAnEmptySelectionChoosesTheDefaultAgain) {
  RatesPage page(kFour);
  const auto before = page.Rows();
  page.Ranges().Toggle(0, 0);
  page.project.Session().Pages().Revert(kPage);
  EXPECT_EQ(page.Chosen(), "NYNN");
  EXPECT_EQ(page.Rows(), before);
}

TEST(FrameRatesPage, AStoredRateThatNoRangeHasEmptiesTheSelection) {
  const struct {
    std::vector<Range> ranges;
    const char *first, *second;
    const char* chosen;
    bool changed;
  } cases[] = {{kFour, "72", "71", "NYNN", true},
               {kFour, "72", "60.0", "NYYN", false},
               {kFour, "50", "72", "YNYN", false},
               // Without a range that is always selected the content stays, and what matches shows.
               {{kFour[2], kFour[3]}, "72.0", "71", "YN", false}};
  for (const auto& [ranges, first, second, chosen, changed] : cases) {
    const std::string rate = "<SequenceRate hertz=\"";
    RatesPage page(ranges, rate + first + "\"/>" + rate + second + "\"/>");
    EXPECT_EQ(page.Chosen(), chosen);
    EXPECT_EQ(page.TakeChanged(), changed) << chosen;
  }
}

TEST(FrameRatesPage, WithoutASelectionThereIsNothingToShow) {
  RatesPage page({kFour[3]});
  EXPECT_EQ(page.Chosen(), "N");
  EXPECT_THAT(page.Rows(), ElementsAre());
  EXPECT_FALSE(page.TakeChanged());
  page.Control("Why?").SetText("60");
  EXPECT_THAT(page.Text("Explanation"), StartsWith("No bin serves 60 Hz"));
}

/// The fill of a bin's bar, beside its name.
QColor Fill(frame_rates::CoverageView& view, int bin) {
  const QPoint place = view.BarOf(bin).topLeft().toPoint() + QPoint(5, 5);
  return view.grab().toImage().pixelColor(place);
}

TEST(FrameRatesPage, SelectingHighlightsRowsAndBars) {
  RatesPage page(kExample);
  EXPECT_EQ(page.Highlighted(), "");
  page.Rates().Select({{2, 2}});
  EXPECT_EQ(page.Highlighted(), "47.50 - 63.00 Hz (frame counts 238095 to 315789): LEV, 60.0 × 1");
  // A merged row has a bar for each of its bins.
  page.Rates().Select({{0, 0}});
  EXPECT_EQ(page.Highlighted(),
            "0.00 - 27.50 Hz (frame counts 545456 to 4294967295): LIV, 60.0 × 1 + "
            "27.50 - 28.50 Hz (frame counts 526317 to 545455): LEV, 60.0 × 2 + "
            "28.50 - 31.50 Hz (frame counts 476190 to 526316): LEV, 60.0 × 2");

  frame_rates::CoverageView& bars = page.Coverage();
  QTest::mouseClick(&bars, Qt::LeftButton, {}, bars.BarOf(3).center().toPoint());
  EXPECT_THAT(page.Rates().Selected(), ElementsAre(std::pair(1, 1)));
  EXPECT_THAT(page.Highlighted(), StartsWith("31.50 - 47.50 Hz"));
  QTest::keyClick(&bars, Qt::Key_Right);
  EXPECT_THAT(page.Rates().Selected(), ElementsAre(std::pair(2, 2)));
  EXPECT_THAT(page.Highlighted(), StartsWith("47.50 - 63.00 Hz"));
}

TEST(FrameRatesPage, PointingHighlightsRowsAndBars) {
  RatesPage page(kExample);
  frame_rates::CoverageView& bars = page.Coverage();
  auto* rows = qobject_cast<QAbstractItemView*>(&page.Control("Supported Frame Rates").Widget());
  ASSERT_NE(rows, nullptr);
  const QColor locked = Fill(bars, 4), internal = Fill(bars, 3);
  EXPECT_NE(locked, internal);

  QTest::mouseMove(rows->viewport(), rows->visualRect(rows->model()->index(2, 0)).center());
  EXPECT_NE(Fill(bars, 4), locked);
  EXPECT_EQ(Fill(bars, 3), internal);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(rows->viewport(), &leave);
  EXPECT_EQ(Fill(bars, 4), locked);

  page.Rates().Select({{1, 1}});
  QTest::mouseMove(&bars, bars.BarOf(4).center().toPoint());
  EXPECT_THAT(page.Rates().Selected(), ElementsAre(std::pair(2, 2)));
  EXPECT_THAT(page.Highlighted(), StartsWith("31.50 - 47.50 Hz")) << "still the selected one";
  QCoreApplication::sendEvent(&bars, &leave);
  EXPECT_THAT(page.Rates().Selected(), ElementsAre(std::pair(1, 1)));
}

TEST(FrameRatesPage, ApplyingKeepsWhatOthersStored) {
  RatesPage page(
      {kFour[1]},
      "\n <SequenceRate by=\"me\" hertz=\"60.00\"/>\n <!-- chosen --><Remark>x</Remark>");
  ASSERT_TRUE(page.Apply());
  const std::string once = page.Database();
  EXPECT_THAT(once, HasSubstr("<SequenceRate by=\"me\" hertz=\"60.00\"/>\n <!-- chosen -->"
                              "<Remark>x</Remark>"));
  EXPECT_THAT(once, HasSubstr("longestTicks=\"4294967295\""));
  ASSERT_TRUE(page.Apply());
  EXPECT_EQ(page.Database(), once);
}

TEST(FrameRatesPage, SaysWhyARateIsServed) {
  RatesPage page(kExample);
  const std::pair<const char*, const char*> typed[] = {
      {"47.95", "47.95 Hz (frame count 312826) is served by the bin 47.50 - 63.00 Hz"},
      {"fast", "\"fast\" is not a source rate in Hz."}};
  for (const auto& [rate, explained] : typed) {
    page.Control("Why?").SetText(rate);
    EXPECT_THAT(page.Text("Explanation"), StartsWith(explained));
  }
  page.Control("Why?").SetText("");
  EXPECT_EQ(page.Text("Explanation"), "");
}

TEST(FrameRatesCommand, ExplainsARateOfTheStoredSelection) {
  test::Command sysdef;
  const auto result = sysdef.Run({"show", test::Command::kProject, kPage, "--explain", "120"});
  EXPECT_EQ(result.status, 0) << result;
  EXPECT_THAT(result.out, testing::AllOf(StartsWith("120 Hz (frame count 125000) is served by"),
                                         HasSubstr("sequence range 120.00 with multiplier 1, 3D")));
}

}  // namespace
