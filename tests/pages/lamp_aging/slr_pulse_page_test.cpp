// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/slr_pulse_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSlider>
#include <QTableWidget>
#include <QTest>
#include <random>

#include "archive/support/round_trip.h"
#include "host/gui/message_box.h"
#include "model/lamp_aging_page_data.h"
#include "support/page_form.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::string Key(const std::string& name, const std::string& text) {
  return "<Key name=\"projectclass." + name + "\">" + text + "</Key>";
}

std::string SpinFactorKey(int group, int number, const char* text) {
  return Key("seqrange.group" + std::to_string(group) + ".spinfactor" + std::to_string(number),
             text);
}

const std::string kTwoFactors = SpinFactorKey(1, 1, "2") + SpinFactorKey(1, 2, "3.0");

struct AgingPage : test::PageForm<LampAgingPageData> {
  explicit AgingPage(const std::string& keys = kTwoFactors, const std::string& aging = {})
      : PageForm("SlrPulsePage", "<RunTimeDB>" + aging + "</RunTimeDB>", keys) {
    (void)Form();
  }
  automation::Table Bins() { return Table("Bins"); }
  std::string Row(int row) {
    QStringList cells;
    for (int column = 0; column < Bins().Columns(); ++column) cells << Bins().Cell(row, column);
    return cells.join('|').toStdString();
  }
  std::string Rows() {
    std::string rows;
    for (int row = 0; row < Bins().Rows(); ++row) rows += Row(row) + '\n';
    return rows;
  }
  Findings Check() {
    return Framework::PageHost::Services(project.Session().Pages().Open("SlrPulsePage"))
        .CheckData();
  }
  void Press(int row, const char* button) {
    Bins().Select({{row, row}});
    Form().Press(button);
  }
  /// Presses a button and leaves the dialog that follows with these texts; null texts stay. What
  /// was told, each with one OK button and no icon.
  std::string Edit(const char* button, const char* lower, const char* upper,
                   const char* amplitude) {
    interaction.OnDialog([=](automation::Form& dialog) {
      const std::pair<const char*, const char*> texts[] = {
          {"Ballast Lower Limit Value", lower},
          {"Ballast Upper Limit Value", upper},
          {"Avg. Pulse Amplitude Ratio", amplitude}};
      for (const auto& [name, text] : texts) {
        if (text) dialog.GetControl(name).SetText(text);
      }
      dialog.Press("OK");
    });
    Form().Press(button);
    interaction.RethrowFailure();
    return Told();
  }
  std::string Told() {
    std::string texts;
    for (const auto& message : interaction.TakeMessages()) {
      EXPECT_EQ(message.style, msgbox::kOk) << message.text;
      texts += message.text;
    }
    return texts;
  }
};

/// The page with the default table of a ballast that sends feedback.
struct FeedbackPage : AgingPage {
  explicit FeedbackPage(const std::string& keys = kTwoFactors) : AgingPage(keys) {
    Form().Press("Ballast Sends Feedback");
    (void)TakeChanged();
  }
};

// Up to a hole or to one that is known already, a group after the other.
TEST(SlrPulsePage, OffersEachSpinFactorOnceAsWritten) {
  AgingPage page(kTwoFactors + SpinFactorKey(1, 4, "5") + SpinFactorKey(2, 1, "2.0") +
                 SpinFactorKey(2, 2, "4") + SpinFactorKey(3, 1, "2.50") + SpinFactorKey(3, 2, "3") +
                 SpinFactorKey(3, 3, "8") + SpinFactorKey(4, 1, "1.5x") + SpinFactorKey(5, 1, "9"));
  const QStringList offered{"2", "3.0", "2.50", "1.5x"};
  EXPECT_EQ(page.Control("Spin Factor").Items(), offered);
  EXPECT_EQ(page.Text("Spin Factor"), "2");
  page.Reopen();
  EXPECT_EQ(page.Control("Spin Factor").Items(), offered);
  page.Control("Spin Factor").Choose("1.5x");
  EXPECT_EQ(page.Now().m_VecpulseAmpDataNoFeedBackGroup.at(0).m_spinFactor, 1.5);
}

TEST(SlrPulsePage, ShowsEachBallastTypeInItsForm) {
  AgingPage page;
  EXPECT_EQ(page.Form().Title(), "Lamp Aging");
  EXPECT_TRUE(page.Control("No Feedback").Checked());
  EXPECT_EQ(page.Text("Caption"), "Pulse Amplitude Ratio to use for ASIC Configuration");
  EXPECT_EQ(page.Bins().Headers(), QStringList({" Bin#", "Avg. Pulse Amplitude Ratio"}));
  EXPECT_EQ(page.Rows(), "    0  |1.760\n");
  for (const char* off : {"Add Bin", "Delete Bin"}) EXPECT_FALSE(page.Control(off).Enabled());
  for (const char* hidden : {"Edit Feedback", "Apply Current Values To All Spin Factors"})
    EXPECT_FALSE(page.Control(hidden).Visible()) << hidden;
  EXPECT_FALSE(page.TakeChanged());

  page.Form().Press("Ballast Sends Feedback");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Text("Caption"), "Mapping Between Ballast Feedback Values and Pulse Amplitudes");
  EXPECT_EQ(page.Bins().Headers(),
            QStringList({" Bin#", "Lower Limit", "Upper Limit", "Avg. Pulse Amplitude Ratio"}));
  EXPECT_EQ(page.Bins().Rows(), 16);
  EXPECT_EQ(page.Row(0), "    0  |  0|  9|1.120");
  EXPECT_EQ(page.Row(15), "   15  | 36| 39|3.100");
  for (const char* on : {"Add Bin", "Delete Bin"}) EXPECT_TRUE(page.Control(on).Enabled());
  page.Form().Press("Ballast Sends Feedback");
  EXPECT_FALSE(page.TakeChanged()) << "nothing was chosen anew";
}

TEST(SlrPulsePage, WithoutSpinFactorsNothingIsKept) {
  FeedbackPage page(Key("device.kind", "18"));
  EXPECT_EQ(page.Control("Spin Factor").Items(), QStringList());
  EXPECT_EQ(page.Bins().Rows(), 16);
  ASSERT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("<Ballast type=\"feedback\"/>"));
  EXPECT_THAT(page.Database(), Not(HasSubstr("Table")));
}

TEST(SlrPulsePage, AddsABinInItsPlaceAndSelectsIt) {
  FeedbackPage page;
  page.Form().Press("Add Bin");
  EXPECT_EQ(page.Told(), "Error, max# of allowed entries = 16");
  page.Press(15, "Delete Bin");
  page.TakeChanged();
  // Behind the last row, as wide as is offered; the amplitude is on the way to the maximum.
  page.interaction.OnDialog([](automation::Form& dialog) {
    EXPECT_EQ(dialog.Title(), "Lamp Pulse");
    EXPECT_EQ(dialog.GetControl("Ballast Lower Limit Value").Text(), "36");
    EXPECT_EQ(dialog.GetControl("Ballast Upper Limit Value").Text(), "44");
    EXPECT_EQ(dialog.GetControl("Avg. Pulse Amplitude Ratio").Text(), "3.100");
    dialog.Press("Cancel");
  });
  page.Form().Press("Add Bin");
  page.interaction.RethrowFailure();
  EXPECT_EQ(page.Bins().Rows(), 15);
  EXPECT_FALSE(page.TakeChanged());

  EXPECT_EQ(page.Edit("Add Bin", nullptr, "255", "3.5"), "");
  EXPECT_EQ(page.Row(15), "   15  | 36|255|3.500");
  EXPECT_THAT(page.Bins().Selected(), ElementsAre(std::pair(15, 15)));
  EXPECT_TRUE(page.TakeChanged());
  ASSERT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("fromFeedback=\"36\" toFeedback=\"255\" ratio=\"3.5\""));
}

TEST(SlrPulsePage, ARefusedBinIsToldAndChangesNothing) {
  FeedbackPage page;
  const std::string before = page.Rows();
  // Told for the bins around the one that is changed.
  const struct {
    int row;
    const char *lower, *upper, *amplitude, *text;
  } refused[] = {
      {4, "14", "16", "1.7",
       "Error, new ballast lower limit (=14) is = to lower limit for advacent bin (=14)"},
      {4, "15", "16", "1.68",
       "Error, pulse amplitude ratio is not increasing; new ampl of Bin#4 must be greaterthan "
       "bin#3 ampl = 1.680"},
      {4, "-1", "16", "1.7",
       "Error, new ballast upper limit (=16) is less than min allowable upper "
       "limit for previous bin (=40), where the min overlap =0"},
      {15, nullptr, nullptr, "3.501",
       "Error, pulse amplitude ratio for Bin#15 exceeds maximum allowed amplitude(=3.500)"}};
  for (const auto& [row, lower, upper, amplitude, text] : refused) {
    page.Bins().Select({{row, row}});
    EXPECT_EQ(page.Edit("Change Bin", lower, upper, amplitude), text);
    EXPECT_EQ(page.Rows(), before);
    EXPECT_FALSE(page.TakeChanged());
  }
  page.Bins().Select({{4, 4}});
  EXPECT_EQ(page.Edit("Change Bin", nullptr, nullptr, "1.681"), "");
  EXPECT_EQ(page.Bins().Cell(4, 3), "1.681");
  EXPECT_THAT(page.Bins().Selected(), ElementsAre(std::pair(4, 4)));
  EXPECT_TRUE(page.TakeChanged());
}

TEST(SlrPulsePage, TheDialogRefusesWhatIsNoNumber) {
  FeedbackPage page;
  const std::string before = page.Rows();
  page.interaction.OnDialog([&page](automation::Form& dialog) {
    const char* const upper = "Ballast Upper Limit Value";
    const std::tuple<const char*, const char*, const char*> refused[] = {
        {upper, "9.5", "Please enter an integer."},
        {upper, "32768", "Please enter an integer between -32768 and 32767."},
        {"Avg. Pulse Amplitude Ratio", "1,2", "Please enter a number."}};
    for (const auto& [box, text, told] : refused) {
      dialog.GetControl(upper).SetText("9");
      dialog.GetControl(box).SetText(text);
      dialog.Press("OK");
      EXPECT_TRUE(dialog.Open());
      const auto messages = page.interaction.TakeMessages();
      ASSERT_EQ(messages.size(), 1u);
      EXPECT_EQ(messages[0].text, told);
    }
    dialog.Press("Cancel");
  });
  page.Press(0, "Change Bin");
  page.interaction.RethrowFailure();
  EXPECT_EQ(page.Rows(), before);
}

TEST(SlrPulsePage, DeletesTheSelectedBinButNotTheLast) {
  FeedbackPage page;
  page.Form().Press("Delete Bin");
  EXPECT_EQ(page.Told(), "Please select a row to delete.");
  page.Form().Press("Change Bin");
  EXPECT_EQ(page.Told(), "Please select a row to edit.");
  for (const int rest : {15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 1}) {
    page.Press(0, "Delete Bin");
    EXPECT_EQ(page.Bins().Rows(), rest);
  }
  EXPECT_EQ(page.Rows(), "    0  | 36| 39|3.100\n");
  EXPECT_EQ(page.Told(), "");
}

TEST(SlrPulsePage, WithoutFeedbackOnlyTheAmplitudeChanges) {
  AgingPage page(kTwoFactors + Key("lamppulse.max_allowed_amplitude", "2.25"));
  const auto change = [&page](const char* amplitude) {
    page.interaction.OnDialog([amplitude](automation::Form& dialog) {
      EXPECT_FALSE(dialog.GetControl("Ballast Lower Limit Value").Enabled());
      EXPECT_FALSE(dialog.GetControl("Ballast Upper Limit Value").Enabled());
      EXPECT_TRUE(dialog.GetControl("Avg. Pulse Amplitude Ratio").Widget().hasFocus());
      dialog.GetControl("Avg. Pulse Amplitude Ratio").SetText(amplitude);
      dialog.Press("OK");
    });
    page.Form().Press("Change Bin");
    page.interaction.RethrowFailure();
    return page.Told();
  };
  EXPECT_EQ(change("2.251"),
            "Error, pulse amplitude ratio for Bin#0 exceeds maximum allowed amplitude(=2.250)");
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_EQ(change("2"), "");
  EXPECT_EQ(page.Rows(), "    0  |2.000\n");
  page.project.Session().Pages().Revert("SlrPulsePage");
  EXPECT_EQ(page.Rows(), "    0  |1.760\n") << "no table is stored: the default again";
  page.TakeChanged();
  EXPECT_EQ(change("2.25"), "");
  EXPECT_EQ(page.Rows(), "    0  |2.250\n");
  EXPECT_TRUE(page.TakeChanged());
  ASSERT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("<NoFeedbackTable spinFactor=\"2\">"));
  EXPECT_THAT(page.Database(), HasSubstr("fromFeedback=\"0\" toFeedback=\"0\" ratio=\"2.25\""));
  EXPECT_THAT(page.Database(), Not(HasSubstr("<FeedbackTable"))) << "an empty one is not stored";
}

TEST(SlrPulsePage, EachSpinFactorKeepsItsOwnTables) {
  FeedbackPage page;
  page.Bins().Select({{0, 0}});
  EXPECT_EQ(page.Edit("Change Bin", nullptr, nullptr, "1.2"), "");
  page.TakeChanged();
  page.Control("Spin Factor").Choose("3.0");
  EXPECT_TRUE(page.TakeChanged()) << "the tables of the new spin factor are made";
  EXPECT_EQ(page.Bins().Cell(0, 3), "1.120");
  page.Press(1, "Delete Bin");
  page.Control("Spin Factor").Choose("2");
  EXPECT_EQ(page.Bins().Rows(), 16);
  EXPECT_EQ(page.Bins().Cell(0, 3), "1.200");
  page.TakeChanged();
  page.Control("Spin Factor").Choose("3.0");
  EXPECT_EQ(page.Bins().Rows(), 15);
  EXPECT_FALSE(page.TakeChanged());

  const LampAgingPageData before = page.Now();
  ASSERT_TRUE(page.Apply());
  ASSERT_TRUE(page.project.Session().Tool().Save());
  page.project.Restart();
  EXPECT_EQ(page.Now(), before);
}

constexpr const char* kStored =
    "\n <LampAging owner=\"lab\">\n"
    "  <NoFeedbackTable spinFactor=\"2.0\"><PulseAmplitude ratio=\"1.760\" fromFeedback=\"0\" "
    "toFeedback=\"0\" by=\"me\"/></NoFeedbackTable>\n"
    "  <!-- measured -->\n"
    "  <FeedbackTable title=\"Video\" spinFactor=\"2\" lamp=\"7\">\n"
    "   <SequenceGroup name=\"Normal\" kind=\"x\"/>\n"
    "   <PulseAmplitude toFeedback=\"9\" fromFeedback=\"0\" ratio=\"1.10\" unit=\"A\"/>\n"
    "   <Remark>warm</Remark>\n"
    "   <PulseAmplitude toFeedback=\"12\" fromFeedback=\"9\" ratio=\"1.30\" unit=\"B\"/>\n"
    "  </FeedbackTable>\n"
    "  <Ballast type=\"feedback\" maker=\"Z\"/>\n"
    "  <Other x=\"1\"/>\n"
    " </LampAging>\n";

TEST(SlrPulsePage, ApplyingKeepsWhatOthersStored) {
  AgingPage page(SpinFactorKey(1, 1, "2"), kStored);
  EXPECT_TRUE(page.Control("Ballast Sends Feedback").Checked());
  EXPECT_EQ(page.Bins().Rows(), 2);
  const std::string before = page.Database();
  ASSERT_TRUE(page.Apply());
  EXPECT_EQ(page.Database(), before);
  EXPECT_FALSE(page.TakeChanged());

  page.Press(0, "Delete Bin");
  EXPECT_EQ(page.Edit("Add Bin", nullptr, nullptr, nullptr), "");
  ASSERT_TRUE(page.Apply());
  const std::string after = page.Database();
  for (const char* kept : {"owner=\"lab\"", "by=\"me\"", "<!-- measured -->",
                           "title=\"Video\" spinFactor=\"2\" lamp=\"7\"",
                           "<SequenceGroup name=\"Normal\" kind=\"x\"/>", "<Remark>warm</Remark>",
                           "<Ballast type=\"feedback\" maker=\"Z\"/>", "<Other x=\"1\"/>",
                           "toFeedback=\"12\" fromFeedback=\"9\" ratio=\"1.30\" unit=\"B\"",
                           "fromFeedback=\"12\" toFeedback=\"20\" ratio=\"1.5\""}) {
    EXPECT_THAT(after, HasSubstr(kept));
  }
  EXPECT_THAT(after, Not(HasSubstr("unit=\"A\""))) << "gone with its bin";
}

// Whatever a person does in whatever order, the check finds no fault with it.
TEST(SlrPulsePage, WhatThePageBuildsPassesTheCheck) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto below = [&random](int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
  };
  FeedbackPage page;
  int taken = 0;
  for (int edit = 0; edit < 300; ++edit) {
    if (below(10) == 0) page.Control("Spin Factor").Choose(below(2) ? "2" : "3.0");
    const bool feedback = below(4) > 0;
    page.Form().Press(feedback ? "Ballast Sends Feedback" : "No Feedback");
    const int row = below(page.Bins().Rows());
    const double amplitude = page.Bins().Cell(row, feedback ? 3 : 1).toDouble();
    const std::string changed = std::to_string(amplitude + (below(100) - 20) / 200.0);
    page.Bins().Select({{row, row}});
    if (!feedback) {
      taken += page.Edit("Change Bin", nullptr, nullptr, changed.c_str()).empty();
    } else if (below(3) == 0) {
      page.Form().Press("Delete Bin");
    } else {
      const int lower = page.Bins().Cell(row, 1).toInt() + below(7) - 2;
      const std::string from = std::to_string(lower), to = std::to_string(lower + below(12) - 1);
      const char* button = page.Bins().Rows() == 16 || below(2) ? "Change Bin" : "Add Bin";
      taken += page.Edit(button, from.c_str(), to.c_str(), changed.c_str()).empty();
    }
    for (const Finding& finding : page.Check()) {
      ASSERT_NE(finding.severity, Severity::kError) << finding.text << '\n' << page.Rows();
    }
  }
  EXPECT_GT(taken, 0);
}

TEST(SlrPulsePage, ARowIsSelectedWhenThePointerRestsOnIt) {
  FeedbackPage page;
  auto* bins = qobject_cast<QTableWidget*>(&page.Control("Bins").Widget());
  ASSERT_NE(bins, nullptr);
  for (const int row : {2, 3}) {
    EXPECT_THAT(page.Bins().Selected(), ElementsAre()) << "it moves on in between";
    QTest::mouseMove(bins->viewport(), bins->visualItemRect(bins->item(row, 1)).center());
    QTest::qWait(row == 2 ? 100 : 200);
  }
  EXPECT_THAT(page.Bins().Selected(), ElementsAre());
  ASSERT_TRUE(QTest::qWaitFor([&page] { return !page.Bins().Selected().empty(); }, 2000));
  EXPECT_THAT(page.Bins().Selected(), ElementsAre(std::pair(3, 3)));
}

TEST(SlrPulsePage, TheProbeReadsTheShownTable) {
  AgingPage page;
  EXPECT_FALSE(page.Control("Probe Feedback Value").Enabled());
  EXPECT_EQ(page.Text("Probe Result"),
            "The ballast sends no feedback: the amplitude is always 1.760.");
  page.Form().Press("Ballast Sends Feedback");
  const auto probe = [&page](const char* value) {
    page.Control("Probe Feedback Value").SetText(value);
    return page.Text("Probe Result");
  };
  EXPECT_EQ(probe("9"), "Feedback value 9: Bin#0, amplitude 1.120; Bin#1, amplitude 1.360.");
  EXPECT_EQ(probe("256"), "Please enter an integer between 0 and 255.");
  auto& slider = dynamic_cast<QSlider&>(page.Control("Probe Slider").Widget());
  EXPECT_EQ(slider.value(), 25) << "as far as it was typed";
  slider.setValue(40);
  EXPECT_EQ(page.Text("Probe Feedback Value"), "40");
  EXPECT_EQ(page.Text("Probe Result"), "No bin covers feedback value 40.");
  page.Press(0, "Delete Bin");
  EXPECT_EQ(probe("3"), "No bin covers feedback value 3.");
}

TEST(SlrPulsePage, ItsArchiveHoldsTheBallastType) {
  SlrPulsePage page;
  archive_test::Read("<Inputs><BallastType>0</BallastType></Inputs>", page);
  EXPECT_EQ(archive_test::Written(page),
            "<ModuleOutputs><BallastType>0</BallastType></ModuleOutputs>");
}

}  // namespace
