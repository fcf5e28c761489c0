// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QEvent>
#include <QTest>

#include "automation/automation_error.h"
#include "automation/form.h"
#include "automation/script_page.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/gui/tool.h"
#include "host/project/run_time_db.h"
#include "pages/frame_rates/coverage_view.h"
#include "support/command.h"
#include "support/open_project.h"

namespace {

using automation::Control;
using automation::Form;
using automation::Table;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kPage = "FrameRatesPage";

struct Range {
  const char *base, *min, *max, *multipliers;
};

std::string Keys(const std::vector<Range>& ranges) {
  std::string keys;
  int number = 0;
  for (const Range& range : ranges) {
    const std::string head =
        "<Key name=\"projectclass.seqrange.group1.seq" + std::to_string(++number) + ".";
    keys += head + "basehz\">" + range.base + "</Key>" + head + "minhz\">" + range.min + "</Key>" +
            head + "maxhz\">" + range.max + "</Key>" + head + "maxseqmultiplier\">" +
            range.multipliers + "</Key>";
  }
  return keys;
}

const std::vector<Range> kExample{{"60.0", "47.5", "63", "2"}};
const std::vector<Range> kFour{{"50.00", "47.5", "56.5", "4"},
                               {"60.00", "57", "63", "4"},
                               {"72.00", "69", "76", "3"},
                               {"120.00", "114", "126", "2"}};

class FrameRatesPageTest : public testing::Test {
 protected:
  void Open(const std::vector<Range>& ranges, const std::string& stored = {}) {
    project_.emplace("<RunTimeDB>" + stored + "</RunTimeDB>", Keys(ranges));
    page_.emplace(automation::OpenPage(project_->Session().Pages(), kPage));
  }
  Control At(const char* name) const { return page_->GetControl(name); }
  Table Ranges() const { return page_->GetTable("Seq Rates"); }
  Table Rates() const { return page_->GetTable("Supported Frame Rates"); }
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int row = 0; row < Rates().Rows(); ++row) {
      rows.push_back((Rates().Cell(row, 0) + ' ' + Rates().Cell(row, 1)).toStdString());
    }
    return rows;
  }
  std::string Chosen() const {
    std::string chosen;
    for (int row = 0; row < Ranges().Rows(); ++row)
      chosen += Ranges().Cell(row, 1).at(0).toLatin1();
    return chosen;
  }
  frame_rates::CoverageView& Coverage() const {
    return dynamic_cast<frame_rates::CoverageView&>(At("Coverage").Widget());
  }
  /// What the drawing says of the selected bins.
  std::string Highlighted() const {
    return Coverage().accessibleDescription().replace('\n', " + ").toStdString();
  }
  bool Changed() const { return project_->Session().Tool().NeedToSave(); }
  void ClearChanged() const { project_->Session().Tool().SetNeedToSave(0); }
  bool Apply() const { return project_->Session().Pages().Apply(kPage); }
  std::string Database() const { return project_->Session().Database().Text(); }

  std::optional<test::OpenProject> project_;
  std::optional<Form> page_;
};

TEST_F(FrameRatesPageTest, ShowsTheRatesOfTheDefaultSelection) {
  Open(kExample);
  EXPECT_EQ(page_->Title(), "Frame Rates");
  EXPECT_EQ(Ranges().Rows(), 1);
  EXPECT_EQ(Ranges().Cell(0, 0), "60.00 Hz (47.50 - 63.00 Hz)");
  EXPECT_EQ(Chosen(), "Y");
  EXPECT_TRUE(Ranges().Checked(0, 0));
  EXPECT_FALSE(Ranges().RowEnabled(0));
  EXPECT_THROW(Ranges().Toggle(0, 0), automation::AutomationError);
  EXPECT_TRUE(Changed()) << "the default selection is stored";

  EXPECT_EQ(Rates().Headers(), QStringList({"Source Frame Rates", "Sequence Sync Mode"}));
  EXPECT_THAT(Rows(), ElementsAre("0.00 - 31.50 Hz LEV", "31.50 - 47.50 Hz LIV",
                                  "47.50 - 63.00 Hz LEV", "63.00+ Hz LIV"));
  for (const int column : {0, 1}) {
    EXPECT_EQ(Rates().Background(0, column), "#ffffff");
    EXPECT_EQ(Rates().Background(1, column), "#cccccc");
    EXPECT_FALSE(Rates().Editable(0, column));
  }
  EXPECT_THAT(At("Note").Text().toStdString(),
              testing::AllOf(StartsWith("Please Note - \nSeq Rates\n- Use List box"),
                             HasSubstr("cannot be deselected\n\nSupported Frame Rates\n"),
                             testing::EndsWith("support the frame rate range  ")));
}

TEST_F(FrameRatesPageTest, EachTickStoresTheSelectionAndItsTable) {
  Open(kFour);
  EXPECT_EQ(Chosen(), "NYNN");
  const auto before = Rows();
  ClearChanged();
  Ranges().Toggle(3, 0);
  EXPECT_TRUE(Changed());
  EXPECT_EQ(Chosen(), "NYNY");
  EXPECT_THAT(Rows(), testing::IsSupersetOf({"57.00 - 63.00 Hz LEV", "114.00 - 126.00 Hz LEV"}));
  Ranges().Toggle(0, 0);
  ASSERT_TRUE(Apply());
  EXPECT_THAT(Database(), testing::ContainsRegex("hertz=\"50\"/>.*\n.*hertz=\"60\"/>.*\n"
                                                 ".*hertz=\"120\"/>"));
  EXPECT_THAT(Database(), HasSubstr("sequenceRange=\"3\" multiplier=\"1\" sync=\"source\" "
                                    "stereo=\"yes\""));
  const Findings findings =
      Framework::PageHost::Services(project_->Session().Pages().Open(kPage)).CheckData();
  for (const Finding& finding : findings) EXPECT_EQ(finding.rule, "frame-rates.shared");

  Ranges().Toggle(0, 0);
  Ranges().Toggle(3, 0);
  EXPECT_EQ(Rows(), before);
  // What was ticked and not applied is gone when the page is read anew.
  project_->Session().Pages().Reopen(kPage);
  EXPECT_EQ(Chosen(), "YYNY");
}

std::string Stored(const char* rates) {
  return std::string("<FrameRates>") + rates + "</FrameRates>";
}

TEST_F(FrameRatesPageTest, AStoredRateThatNoRangeHasEmptiesTheSelection) {
  Open(kFour, Stored("<SequenceRate hertz=\"72\"/><SequenceRate hertz=\"71\"/>"));
  EXPECT_EQ(Chosen(), "NYNN");
  EXPECT_TRUE(Changed());
  // Without a range that is always selected the content stays, and what matches shows.
  Open({kFour[2], kFour[3]}, Stored("<SequenceRate hertz=\"72.0\"/><SequenceRate hertz=\"71\"/>"));
  EXPECT_EQ(Chosen(), "YN");
  EXPECT_FALSE(Changed());
  EXPECT_THAT(Rows(), testing::Contains("69.00 - 76.00 Hz LEV"));
}

// Its item cannot be ticked: nobody could choose it again.
TEST_F(FrameRatesPageTest, ARevertToAnEmptySelectionChoosesTheDefaultAgain) {
  Open(kFour);
  const auto before = Rows();
  Ranges().Toggle(0, 0);
  project_->Session().Pages().Revert(kPage);
  EXPECT_EQ(Chosen(), "NYNN");
  EXPECT_EQ(Rows(), before);
}

TEST_F(FrameRatesPageTest, WithoutASelectionThereIsNothingToShow) {
  Open({kFour[3]});
  EXPECT_EQ(Chosen(), "N");
  EXPECT_THAT(Rows(), ElementsAre());
  EXPECT_FALSE(Changed());
  At("Why?").SetText("60");
  EXPECT_THAT(At("Explanation").Text().toStdString(), StartsWith("No bin serves 60 Hz"));
}

/// The fill of a bin's bar, beside its name.
QColor Fill(frame_rates::CoverageView& view, int bin) {
  const QPoint place = view.BarOf(bin).topLeft().toPoint() + QPoint(5, 5);
  return view.grab().toImage().pixelColor(place);
}

TEST_F(FrameRatesPageTest, SelectingHighlightsRowsAndBars) {
  Open(kExample);
  EXPECT_EQ(Highlighted(), "");
  Rates().Select({{2, 2}});
  EXPECT_EQ(Highlighted(), "47.50 - 63.00 Hz (frame counts 238095 to 315789): LEV, 60.0 × 1");
  // A merged row has a bar for each of its bins.
  Rates().Select({{0, 0}});
  EXPECT_EQ(Highlighted(),
            "0.00 - 27.50 Hz (frame counts 545456 to 4294967295): LIV, 60.0 × 1 + "
            "27.50 - 28.50 Hz (frame counts 526317 to 545455): LEV, 60.0 × 2 + "
            "28.50 - 31.50 Hz (frame counts 476190 to 526316): LEV, 60.0 × 2");

  frame_rates::CoverageView& bars = Coverage();
  QTest::mouseClick(&bars, Qt::LeftButton, {}, bars.BarOf(3).center().toPoint());
  EXPECT_THAT(Rates().Selected(), ElementsAre(std::pair(1, 1)));
  EXPECT_THAT(Highlighted(), StartsWith("31.50 - 47.50 Hz"));
  QTest::keyClick(&bars, Qt::Key_Right);
  EXPECT_THAT(Rates().Selected(), ElementsAre(std::pair(2, 2)));
  EXPECT_THAT(Highlighted(), StartsWith("47.50 - 63.00 Hz"));
}

TEST_F(FrameRatesPageTest, PointingHighlightsRowsAndBars) {
  Open(kExample);
  frame_rates::CoverageView& bars = Coverage();
  auto* rows = qobject_cast<QAbstractItemView*>(&At("Supported Frame Rates").Widget());
  ASSERT_NE(rows, nullptr);
  const QColor locked = Fill(bars, 4), internal = Fill(bars, 3);
  EXPECT_NE(locked, internal);

  QTest::mouseMove(rows->viewport(), rows->visualRect(rows->model()->index(2, 0)).center());
  EXPECT_NE(Fill(bars, 4), locked);
  EXPECT_EQ(Fill(bars, 3), internal);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(rows->viewport(), &leave);
  EXPECT_EQ(Fill(bars, 4), locked);

  Rates().Select({{1, 1}});
  QTest::mouseMove(&bars, bars.BarOf(4).center().toPoint());
  EXPECT_THAT(Rates().Selected(), ElementsAre(std::pair(2, 2)));
  EXPECT_THAT(Highlighted(), StartsWith("31.50 - 47.50 Hz")) << "still the selected one";
  QCoreApplication::sendEvent(&bars, &leave);
  EXPECT_THAT(Rates().Selected(), ElementsAre(std::pair(1, 1)));
}

TEST_F(FrameRatesPageTest, ApplyingKeepsWhatOthersStored) {
  Open({kFour[1]},
       Stored("\n <SequenceRate by=\"me\" hertz=\"60.00\"/>\n <!-- chosen --><Remark>x</Remark>"));
  ASSERT_TRUE(Apply());
  const std::string once = Database();
  EXPECT_THAT(once, HasSubstr("<SequenceRate by=\"me\" hertz=\"60.00\"/>\n <!-- chosen -->"
                              "<Remark>x</Remark>"));
  EXPECT_THAT(once, HasSubstr("longestTicks=\"4294967295\""));
  ASSERT_TRUE(Apply());
  EXPECT_EQ(Database(), once);
}

TEST_F(FrameRatesPageTest, SaysWhyARateIsServed) {
  Open(kExample);
  At("Why?").SetText("47.95");
  EXPECT_THAT(At("Explanation").Text().toStdString(),
              testing::AllOf(HasSubstr("47.95 Hz (frame count 312826) is served by"),
                             HasSubstr("candidate of sequence range 60.0 with multiplier 1")));
  At("Why?").SetText("fast");
  EXPECT_EQ(At("Explanation").Text(), "\"fast\" is not a source rate in Hz.");
  At("Why?").SetText("");
  EXPECT_EQ(At("Explanation").Text(), "");
}

TEST(FrameRatesCommand, ExplainsARateOfTheStoredSelection) {
  test::Command sysdef;
  const auto result = sysdef.Run({"show", test::Command::kProject, kPage, "--explain", "120"});
  EXPECT_EQ(result.status, 0) << result;
  EXPECT_THAT(result.out, testing::AllOf(StartsWith("120 Hz (frame count 125000) is served by"),
                                         HasSubstr("sequence range 120.00 with multiplier 1, 3D")));
}

}  // namespace
