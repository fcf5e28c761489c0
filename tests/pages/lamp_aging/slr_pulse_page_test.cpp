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
#include "automation/form.h"
#include "automation/interaction.h"
#include "automation/script_page.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/gui/tool.h"
#include "host/project/run_time_db.h"
#include "support/open_project.h"

namespace {

using automation::Control;
using automation::Form;
using automation::Table;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kPage = "SlrPulsePage";

std::string Key(const std::string& name, const std::string& text) {
  return "<Key name=\"projectclass." + name + "\">" + text + "</Key>";
}

std::string SpinFactorKey(int group, int number, const char* text) {
  return Key("seqrange.group" + std::to_string(group) + ".spinfactor" + std::to_string(number),
             text);
}

const std::string kTwoFactors = SpinFactorKey(1, 1, "2") + SpinFactorKey(1, 2, "3.0");

class SlrPulsePageTest : public testing::Test {
 protected:
  void Open(const std::string& keys = kTwoFactors, const std::string& aging = {}) {
    project_.emplace("<RunTimeDB>" + aging + "</RunTimeDB>", keys);
    person_.emplace();
    page_.emplace(automation::OpenPage(project_->Session().Pages(), kPage));
  }
  Control At(const char* name) const { return page_->GetControl(name); }
  Table Bins() const { return page_->GetTable("Bins"); }
  QStringList Row(int row) const {
    QStringList cells;
    for (int column = 0; column < Bins().Columns(); ++column) cells << Bins().Cell(row, column);
    return cells;
  }
  QString Rows() const {
    QString rows;
    for (int row = 0; row < Bins().Rows(); ++row) rows += Row(row).join('|') + '\n';
    return rows;
  }
  bool Changed() const { return project_->Session().Tool().NeedToSave(); }
  void ClearChanged() const { project_->Session().Tool().SetNeedToSave(0); }
  bool Apply() const { return project_->Session().Pages().Apply(kPage); }
  std::string Database() const { return project_->Session().Database().Text(); }
  Framework::PageServices& Services() const {
    return Framework::PageHost::Services(project_->Session().Pages().Open(kPage));
  }

  /// Presses a button and leaves the dialog that follows with these texts; null texts stay.
  void Press(const char* button, const char* lower, const char* upper, const char* amplitude) {
    person_->OnDialog([=](Form& dialog) {
      const auto type = [&](const char* name, const char* text) {
        if (text != nullptr) dialog.GetControl(name).SetText(text);
      };
      type("Ballast Lower Limit Value", lower);
      type("Ballast Upper Limit Value", upper);
      type("Avg. Pulse Amplitude Ratio", amplitude);
      dialog.Press("OK");
    });
    page_->Press(button);
    person_->RethrowFailure();
  }
  /// The message boxes since the last call; all of them have one OK button and no icon.
  std::vector<std::string> Told() {
    std::vector<std::string> texts;
    for (const auto& message : person_->TakeMessages()) {
      EXPECT_EQ(message.style, msgbox::kOk) << message.text;
      texts.push_back(message.text);
    }
    return texts;
  }
  void ChooseFeedback() const { At("Ballast Sends Feedback").Click(); }

  std::optional<test::OpenProject> project_;
  std::optional<automation::Interaction> person_;
  std::optional<Form> page_;
};

TEST_F(SlrPulsePageTest, OffersEachSpinFactorOnceAsWritten) {
  Open(kTwoFactors + SpinFactorKey(2, 1, "2.0") + SpinFactorKey(2, 2, "4") +
       SpinFactorKey(3, 1, "2.50"));
  EXPECT_EQ(page_->Title(), "Lamp Aging");
  EXPECT_EQ(At("Spin Factor").Items(), QStringList({"2", "3.0", "2.50"}));
  EXPECT_EQ(At("Spin Factor").Text(), "2");
  project_->Session().Pages().Reopen(kPage);
  EXPECT_EQ(At("Spin Factor").Items().size(), 3);
}

TEST_F(SlrPulsePageTest, ShowsEachBallastTypeInItsForm) {
  Open();
  EXPECT_TRUE(At("No Feedback").Checked());
  EXPECT_EQ(At("Caption").Text(), "Pulse Amplitude Ratio to use for ASIC Configuration");
  EXPECT_EQ(Bins().Headers(), QStringList({" Bin#", "Avg. Pulse Amplitude Ratio"}));
  EXPECT_EQ(Rows(), "    0  |1.760\n");
  EXPECT_FALSE(At("Add Bin").Enabled());
  EXPECT_FALSE(At("Delete Bin").Enabled());
  for (const char* hidden : {"Edit Feedback", "Apply Current Values To All Spin Factors"})
    EXPECT_FALSE(At(hidden).Visible()) << hidden;
  EXPECT_FALSE(Changed());

  ChooseFeedback();
  EXPECT_TRUE(Changed());
  EXPECT_EQ(At("Caption").Text(), "Mapping Between Ballast Feedback Values and Pulse Amplitudes");
  EXPECT_EQ(Bins().Headers(),
            QStringList({" Bin#", "Lower Limit", "Upper Limit", "Avg. Pulse Amplitude Ratio"}));
  EXPECT_EQ(Bins().Rows(), 16);
  EXPECT_EQ(Row(0), QStringList({"    0  ", "  0", "  9", "1.120"}));
  EXPECT_EQ(Row(15), QStringList({"   15  ", " 36", " 39", "3.100"}));
  EXPECT_TRUE(At("Add Bin").Enabled());
  EXPECT_TRUE(At("Delete Bin").Enabled());
  ClearChanged();
  ChooseFeedback();
  EXPECT_FALSE(Changed()) << "nothing was chosen anew";
}

TEST_F(SlrPulsePageTest, WithoutSpinFactorsNothingIsKept) {
  Open(Key("device.kind", "18"));
  EXPECT_EQ(At("Spin Factor").Items(), QStringList());
  ChooseFeedback();
  EXPECT_EQ(Bins().Rows(), 16);
  ASSERT_TRUE(Apply());
  EXPECT_THAT(Database(), HasSubstr("<Ballast type=\"feedback\"/>"));
  EXPECT_THAT(Database(), testing::Not(HasSubstr("Table")));
}

TEST_F(SlrPulsePageTest, AddsABinInItsPlaceAndSelectsIt) {
  Open();
  ChooseFeedback();
  page_->Press("Add Bin");
  EXPECT_THAT(Told(), ElementsAre("Error, max# of allowed entries = 16"));
  Bins().Select({{15, 15}});
  page_->Press("Delete Bin");
  ClearChanged();

  // Behind the last row, as wide as is offered; the amplitude is on the way to the maximum.
  person_->OnDialog([](Form& dialog) {
    EXPECT_EQ(dialog.Title(), "Lamp Pulse");
    EXPECT_EQ(dialog.GetControl("Ballast Lower Limit Value").Text(), "36");
    EXPECT_EQ(dialog.GetControl("Ballast Upper Limit Value").Text(), "44");
    EXPECT_EQ(dialog.GetControl("Avg. Pulse Amplitude Ratio").Text(), "3.100");
    dialog.Press("Cancel");
  });
  page_->Press("Add Bin");
  person_->RethrowFailure();
  EXPECT_EQ(Bins().Rows(), 15);
  EXPECT_FALSE(Changed());

  Press("Add Bin", nullptr, "255", "3.5");
  EXPECT_THAT(Told(), ElementsAre());
  EXPECT_EQ(Row(15), QStringList({"   15  ", " 36", "255", "3.500"}));
  EXPECT_THAT(Bins().Selected(), ElementsAre(std::pair(15, 15)));
  EXPECT_TRUE(Changed());
  ASSERT_TRUE(Apply());
  EXPECT_THAT(Database(), HasSubstr("fromFeedback=\"36\" toFeedback=\"255\" ratio=\"3.5\""));
}

TEST_F(SlrPulsePageTest, ARefusedBinIsToldAndChangesNothing) {
  Open();
  ChooseFeedback();
  const QString before = Rows();
  Bins().Select({{4, 4}});
  ClearChanged();
  // Told for the bins around the one that is changed, with the project's own limits.
  const struct {
    const char *lower, *upper, *amplitude, *text;
  } refused[] = {
      {"14", "16", "1.7",
       "Error, new ballast lower limit (=14) is = to lower limit for advacent bin (=14)"},
      {"15", "16", "1.68",
       "Error, pulse amplitude ratio is not increasing; new ampl of Bin#4 must be greaterthan "
       "bin#3 ampl = 1.680"},
      {"-1", "16", "1.7",
       "Error, new ballast upper limit (=16) is less than min allowable upper "
       "limit for previous bin (=40), where the min overlap =0"},
  };
  for (const auto& each : refused) {
    Press("Change Bin", each.lower, each.upper, each.amplitude);
    EXPECT_THAT(Told(), ElementsAre(each.text));
    EXPECT_EQ(Rows(), before);
    EXPECT_FALSE(Changed());
  }
  Press("Change Bin", nullptr, nullptr, "1.681");
  EXPECT_THAT(Told(), ElementsAre());
  EXPECT_EQ(Row(4)[3], "1.681");
  EXPECT_THAT(Bins().Selected(), ElementsAre(std::pair(4, 4)));
  EXPECT_TRUE(Changed());
}

TEST_F(SlrPulsePageTest, TheDialogRefusesWhatIsNoNumber) {
  Open();
  ChooseFeedback();
  Bins().Select({{0, 0}});
  person_->OnDialog([this](Form& dialog) {
    const auto refused = [&](const char* name, const char* text) {
      dialog.GetControl(name).SetText(text);
      dialog.Press("OK");
      EXPECT_TRUE(dialog.Open());
      const auto told = person_->TakeMessages();
      return told.size() == 1 ? told[0].text : std::to_string(told.size()) + " messages";
    };
    EXPECT_EQ(refused("Ballast Upper Limit Value", "9.5"), "Please enter an integer.");
    EXPECT_EQ(refused("Ballast Upper Limit Value", "32768"),
              "Please enter an integer between -32768 and 32767.");
    dialog.GetControl("Ballast Upper Limit Value").SetText("9");
    EXPECT_EQ(refused("Avg. Pulse Amplitude Ratio", "1,2"), "Please enter a number.");
    dialog.Press("Cancel");
  });
  page_->Press("Change Bin");
  person_->RethrowFailure();
  EXPECT_EQ(Row(0), QStringList({"    0  ", "  0", "  9", "1.120"}));
}

TEST_F(SlrPulsePageTest, DeletesTheSelectedBinButNotTheLast) {
  Open();
  ChooseFeedback();
  page_->Press("Delete Bin");
  page_->Press("Change Bin");
  EXPECT_THAT(Told(),
              ElementsAre("Please select a row to delete.", "Please select a row to edit."));
  for (int rest = 15; rest > 0; --rest) {
    Bins().Select({{0, 0}});
    page_->Press("Delete Bin");
    ASSERT_EQ(Bins().Rows(), rest);
  }
  EXPECT_EQ(Rows(), "    0  | 36| 39|3.100\n");
  Bins().Select({{0, 0}});
  page_->Press("Delete Bin");
  EXPECT_EQ(Bins().Rows(), 1);
  EXPECT_THAT(Told(), ElementsAre());
}

TEST_F(SlrPulsePageTest, WithoutFeedbackOnlyTheAmplitudeChanges) {
  Open(kTwoFactors + Key("lamppulse.max_allowed_amplitude", "2.25"));
  const auto change = [this](const char* amplitude) {
    person_->OnDialog([amplitude](Form& dialog) {
      EXPECT_FALSE(dialog.GetControl("Ballast Lower Limit Value").Enabled());
      EXPECT_FALSE(dialog.GetControl("Ballast Upper Limit Value").Enabled());
      EXPECT_TRUE(dialog.GetControl("Avg. Pulse Amplitude Ratio").Widget().hasFocus());
      dialog.GetControl("Avg. Pulse Amplitude Ratio").SetText(amplitude);
      dialog.Press("OK");
    });
    page_->Press("Change Bin");
    person_->RethrowFailure();
  };
  change("2.251");
  EXPECT_THAT(Told(), ElementsAre("Error, pulse amplitude ratio for Bin#0 exceeds maximum allowed "
                                  "amplitude(=2.250)"));
  EXPECT_FALSE(Changed());
  change("2");
  EXPECT_EQ(Rows(), "    0  |2.000\n");
  project_->Session().Pages().Revert(kPage);
  EXPECT_EQ(Rows(), "    0  |1.760\n") << "no table is stored: the default again";
  ClearChanged();
  change("2.25");
  EXPECT_EQ(Rows(), "    0  |2.250\n");
  EXPECT_TRUE(Changed());
  ASSERT_TRUE(Apply());
  EXPECT_THAT(Database(), HasSubstr("<NoFeedbackTable spinFactor=\"2\">"));
  EXPECT_THAT(Database(), HasSubstr("fromFeedback=\"0\" toFeedback=\"0\" ratio=\"2.25\""));
}

TEST_F(SlrPulsePageTest, EachSpinFactorKeepsItsOwnTables) {
  Open();
  ChooseFeedback();
  Bins().Select({{0, 0}});
  Press("Change Bin", nullptr, nullptr, "1.2");
  ClearChanged();
  At("Spin Factor").Choose("3.0");
  EXPECT_TRUE(Changed()) << "the tables of the new spin factor are made";
  EXPECT_EQ(Row(0)[3], "1.120");
  Bins().Select({{1, 1}});
  page_->Press("Delete Bin");
  At("Spin Factor").Choose("2");
  EXPECT_EQ(Bins().Rows(), 16);
  EXPECT_EQ(Row(0)[3], "1.200");
  ClearChanged();
  At("Spin Factor").Choose("3.0");
  EXPECT_EQ(Bins().Rows(), 15);
  EXPECT_FALSE(Changed());

  const auto exported = Services().ExportData().ToText(platform::xml::TextForm::kBare);
  ASSERT_TRUE(Apply());
  ASSERT_TRUE(project_->Session().Tool().Save());
  project_->Restart();
  project_->Session().Pages().Open(kPage);
  EXPECT_EQ(Services().ExportData().ToText(platform::xml::TextForm::kBare), exported);
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

TEST_F(SlrPulsePageTest, ApplyingKeepsWhatOthersStored) {
  Open(SpinFactorKey(1, 1, "2"), kStored);
  EXPECT_TRUE(At("Ballast Sends Feedback").Checked());
  EXPECT_EQ(Bins().Rows(), 2);
  const std::string before = Database();
  ASSERT_TRUE(Apply());
  EXPECT_EQ(Database(), before);
  EXPECT_FALSE(Changed());

  Bins().Select({{0, 0}});
  page_->Press("Delete Bin");
  Press("Add Bin", nullptr, nullptr, nullptr);
  ASSERT_TRUE(Apply());
  const std::string after = Database();
  for (const char* kept : {"owner=\"lab\"", "by=\"me\"", "<!-- measured -->",
                           "title=\"Video\" spinFactor=\"2\" lamp=\"7\"",
                           "<SequenceGroup name=\"Normal\" kind=\"x\"/>", "<Remark>warm</Remark>",
                           "<Ballast type=\"feedback\" maker=\"Z\"/>", "<Other x=\"1\"/>",
                           "toFeedback=\"12\" fromFeedback=\"9\" ratio=\"1.30\" unit=\"B\""}) {
    EXPECT_THAT(after, HasSubstr(kept));
  }
  EXPECT_THAT(after, testing::Not(HasSubstr("unit=\"A\""))) << "gone with its bin";
  EXPECT_THAT(after, HasSubstr("fromFeedback=\"12\" toFeedback=\"20\" ratio=\"1.5\""));
}

TEST_F(SlrPulsePageTest, WhatThePageBuildsPassesTheCheck) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto below = [&random](int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
  };
  Open();
  ChooseFeedback();
  int taken = 0;
  for (int edit = 0; edit < 200; ++edit) {
    const int row = below(Bins().Rows());
    Bins().Select({{row, row}});
    if (below(3) == 0) {
      page_->Press("Delete Bin");
      continue;
    }
    const int lower = Bins().Cell(row, 1).toInt() + below(7) - 2;
    const std::string from = std::to_string(lower), to = std::to_string(lower + below(12) - 1),
                      amplitude = std::to_string(Bins().Cell(row, 3).toDouble() +
                                                 (below(100) - 20) / 200.0);
    const bool full = Bins().Rows() == 16;
    Press(full || below(2) ? "Change Bin" : "Add Bin", from.c_str(), to.c_str(), amplitude.c_str());
    if (Told().empty()) ++taken;
    for (const Finding& finding : Services().CheckData()) {
      ASSERT_NE(finding.severity, Severity::kError) << finding.text << '\n' << Rows().toStdString();
    }
  }
  EXPECT_GT(taken, 0);
}

TEST_F(SlrPulsePageTest, ARowIsSelectedWhenThePointerRestsOnIt) {
  Open();
  ChooseFeedback();
  auto* bins = qobject_cast<QTableWidget*>(&At("Bins").Widget());
  ASSERT_NE(bins, nullptr);
  QTest::mouseMove(bins->viewport(), bins->visualItemRect(bins->item(2, 0)).center());
  QTest::qWait(100);
  EXPECT_THAT(Bins().Selected(), ElementsAre());
  QTest::mouseMove(bins->viewport(), bins->visualItemRect(bins->item(3, 1)).center());
  QTest::qWait(200);
  EXPECT_THAT(Bins().Selected(), ElementsAre()) << "it moved on in between";
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Bins().Selected().empty(); }, 2000));
  EXPECT_THAT(Bins().Selected(), ElementsAre(std::pair(3, 3)));
}

TEST_F(SlrPulsePageTest, TheProbeReadsTheShownTable) {
  Open();
  EXPECT_FALSE(At("Probe Feedback Value").Enabled());
  EXPECT_EQ(At("Probe Result").Text(),
            "The ballast sends no feedback: the amplitude is always 1.760.");
  ChooseFeedback();
  At("Probe Feedback Value").SetText("9");
  EXPECT_EQ(At("Probe Result").Text(),
            "Feedback value 9: Bin#0, amplitude 1.120; Bin#1, amplitude 1.360.");
  At("Probe Feedback Value").SetText("256");
  EXPECT_EQ(At("Probe Result").Text(), "Please enter an integer between 0 and 255.");
  auto& slider = dynamic_cast<QSlider&>(At("Probe Slider").Widget());
  EXPECT_EQ(slider.value(), 25) << "as far as it was typed";
  slider.setValue(40);
  EXPECT_EQ(At("Probe Feedback Value").Text(), "40");
  EXPECT_EQ(At("Probe Result").Text(), "No bin covers feedback value 40.");
  Bins().Select({{0, 0}});
  page_->Press("Delete Bin");
  At("Probe Feedback Value").SetText("3");
  EXPECT_EQ(At("Probe Result").Text(), "No bin covers feedback value 3.");
}

TEST(SlrPulsePageArchive, HoldsTheBallastType) {
  SlrPulsePage page;
  EXPECT_EQ(archive_test::Written(page),
            "<ModuleOutputs><BallastType>1</BallastType></ModuleOutputs>");
  archive_test::Read("<Inputs><BallastType>0</BallastType></Inputs>", page);
  EXPECT_EQ(archive_test::Written(page),
            "<ModuleOutputs><BallastType>0</BallastType></ModuleOutputs>");
}

}  // namespace
