// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/sys_def_lamp_waveform_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTest>

#include "automation/script_page.h"
#include "host/gui/message_box.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/project/ost_command_line_info.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"
#include "pages/lamp_waveform/waveform_view.h"
#include "platform/xml/document.h"
#include "support/page_form.h"

namespace {

using automation::Form;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kMaker = "Ballast MFG";
constexpr const char* kIndex = "Ballast Waveform Index";
constexpr const char* kName = "Waveform Name";

const std::string kWheel =
    "<ColorWheel number='0'><SpokeSize degrees='12'/><Segments><Segment color='Red' "
    "degrees='120'/><Segment color='Green' degrees='120'/><Segment color='Blue' degrees='120'/>"
    "</Segments></ColorWheel>";
const std::string kGroups =
    "<GroupType title='2D'><Rate hertz='60' selected='true'/><SpinFactor ratio='2'/><SpinFactor "
    "ratio='2.04'/><SpinFactor ratio='2.5'/></GroupType>"
    "<GroupType title='3D'><Rate hertz='120' selected='true'/><SpinFactor ratio='2'/></GroupType>";

std::string Pulse(const std::string& key, const char* placed, const char* rest) {
  return "<Pulse segment='" + key + "' placed='" + placed + "' " + rest + "/>";
}

/// The pulses of the wheel at spin factor 2: one on the first red segment, 500 microseconds long.
std::string Pulses() {
  std::string pulses =
      Pulse("R00", "true",
            "amplitudeRatio='1.50' leadingEdgeDegrees='1.08' trailingEdgeDegrees='1.08' "
            "widthDegrees='8.640000000000001'");
  for (const char* key : {"G00", "B00", "R10", "G10", "B10"}) {
    pulses += Pulse(key, "false",
                    "amplitudeRatio='1' leadingEdgeDegrees='0' trailingEdgeDegrees='0' "
                    "widthDegrees='0'");
  }
  return "<Pulses>" + pulses + "</Pulses>";
}

std::string Waveform(const std::string& title, int maker, int index,
                     const std::string& rest = " wheel='RGB'") {
  return "<Waveform title='" + title + "'" + rest + "><Ballast makerCode='" +
         std::to_string(maker) + "' waveformIndex='" + std::to_string(index) + "' uartFlag='3'/>" +
         Pulses() + "</Waveform>";
}

const std::string kWaveforms = "<Waveforms groupType='2D' spinFactor='2.0'>" +
                               Waveform("Alpha", 0, 3) + Waveform("Beta", 2, 9) +
                               Waveform("alpha", 12, 255) + "</Waveforms>" +
                               "<Waveforms groupType='3D' spinFactor='2'>" +
                               Waveform("Gamma", 1, 4) + Waveform("Delta", 7, 5) + "</Waveforms>";

struct WaveformPage : test::PageForm<GUIInputsData> {
  explicit WaveformPage(const std::string& waveforms = kWaveforms,
                        const std::string& groups = kGroups, const std::string& wheel = kWheel)
      : PageForm("SysDefLampWaveformPage", "<RunTimeDB>" + wheel + "<LampWaveforms>" + groups +
                                               waveforms + "</LampWaveforms></RunTimeDB>") {
    (void)Form();
  }
  void Choose(const char* list, const char* item) { Control(list).Choose(item); }
  automation::Table Pulses() { return Form().Tab("Pulses").GetTable("Pulses"); }
  /// The chosen pair and waveform: "2D/2.0/Alpha".
  std::string Chosen() {
    return Text("Group Type") + "/" + Text("Spin Factor") + "/" + Text(kName);
  }
  /// The compensation tab: its caption, in brackets while it is disabled.
  std::string CompensationTab() {
    const auto tab = Form().Tabs().at(1);
    return tab.enabled ? tab.text.toStdString() : "(" + tab.text.toStdString() + ")";
  }
  std::vector<std::string> TakeTexts() {
    std::vector<std::string> texts;
    for (const auto& message : interaction.TakeMessages()) texts.push_back(message.text);
    interaction.RethrowFailure();
    return texts;
  }
  /// Presses New and leaves the dialog with that title.
  void MakeWaveform(const char* title) {
    interaction.OnDialog([title](automation::Form& dialog) {
      dialog.GetControl("Title").SetText(title);
      dialog.Press("OK");
    });
    Form().Press("New");
  }
  /// Leaves the dialog of a row's pulse with these values, by that button; null texts stay.
  void LeavePulse(int row, std::initializer_list<const char*> values, const char* button = "OK") {
    const std::vector<const char*> texts = values;
    interaction.OnDialog([texts, button](automation::Form& dialog) {
      const char* fields[] = {"Amplitude %", "Leading Edge (usecs)", "Width (usecs)",
                              "Trailing Edge (usecs)"};
      for (std::size_t i = 0; i < texts.size(); ++i) {
        if (texts[i]) dialog.GetControl(fields[i]).SetText(texts[i]);
      }
      dialog.Press(button);
    });
    Pulses().ClickCell(row, 2);
  }
  lamp_waveform::WaveformView& View() {
    for (auto* widget : Form().Widget().findChildren<QWidget*>()) {
      if (auto* found = dynamic_cast<lamp_waveform::WaveformView*>(widget)) return *found;
    }
    throw std::runtime_error("no such widget");
  }
  /// The titles of every pair: "2D/2: Alpha Beta; ".
  std::string Titles() {
    std::string all;
    for (const LampWaveFormDB& pair : Now().LampWaveformDB) {
      all += pair.SeqGrpName + "/" + lamp_waveform::SpinFactorText(pair.SpinFactor) + ":";
      for (const auto& waveform : pair.LWData) all += " " + waveform.WaveFormTitle;
      all += "; ";
    }
    return all;
  }
};

TEST(LampWaveformPage, ShowsItsDataAndTakesNothingThatNobodyEdited) {
  WaveformPage page;
  const std::string before = page.Database();
  EXPECT_EQ(page.Form().Title(), "Lamp Waveform Definition");
  EXPECT_EQ(page.Control("Group Type").Items(), QStringList({"2D", "3D"}));
  EXPECT_EQ(page.Control("Spin Factor").Items(), QStringList({"2.0", "2.5"}));
  EXPECT_EQ(page.Control(kName).Items(), QStringList({"Alpha", "Beta", "alpha"}));
  EXPECT_EQ(page.Chosen(), "2D/2.0/Alpha");
  EXPECT_EQ(page.Control(kMaker).Items().size(), 12);
  EXPECT_FALSE(page.Control("UART Ballast").Visible());
  EXPECT_EQ(page.Pulses().Headers(), QStringList({"Segment", "Pulse", "Operation"}));
  EXPECT_EQ(page.Pulses().Rows(), 6);
  EXPECT_EQ(page.Pulses().Cell(0, 2), "Edit/Delete...");
  EXPECT_EQ(page.Pulses().Cell(1, 2), "Add...");
  EXPECT_THAT(page.Pulses().ToolTip(0, 1).toStdString(),
              HasSubstr("Width = 400.000000 usecs/8.640000 deg"));
  page.Form().Press("Import Attributes ...");
  page.Form().Press("Export Attributes ...");
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
  EXPECT_EQ(page.Database(), before);
}

TEST(LampWaveformPage, KeepsTheSelectionByItsTextAndMakesAnEmptyEntryForANewPair) {
  WaveformPage page;
  const std::string before = page.Database();
  page.Choose(kName, "alpha");
  page.Choose("Spin Factor", "2.5");
  EXPECT_EQ(page.Chosen(), "2D/2.5/");
  EXPECT_FALSE(page.Control(kName).Enabled());
  for (const char* control :
       {"Delete", "Import Attributes ...", "Export Attributes ...", kMaker, kIndex}) {
    EXPECT_FALSE(page.Control(control).Enabled()) << control;
  }
  EXPECT_FALSE(page.Control("Pulses").Visible());
  EXPECT_TRUE(page.Control("New").Enabled());
  EXPECT_EQ(page.Titles(), "2D/2.0: Alpha Beta alpha; 3D/2.0: Gamma Delta; 2D/2.5:; ");
  page.Choose("Spin Factor", "2.0");
  page.Choose(kName, "Beta");
  page.Choose("Group Type", "3D");
  EXPECT_EQ(page.Chosen(), "3D/2.0/Gamma");
  page.Choose("Group Type", "2D");
  page.Choose(kName, "alpha");
  page.Reopen();
  EXPECT_EQ(page.Chosen(), "2D/2.0/alpha") << "Alpha differs in letter case alone";
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_EQ(page.Database(), before) << "an empty entry says nothing";
}

TEST(LampWaveformPage, WithoutGroupTypesEverythingIsOff) {
  WaveformPage page(kWaveforms, "");
  EXPECT_EQ(page.Chosen(), "//");
  EXPECT_FALSE(page.Control("New").Enabled());
  EXPECT_FALSE(page.Control("Delete").Enabled());
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
}

TEST(LampWaveformPage, TheMakerDecidesTheCompensationTab) {
  WaveformPage page;
  EXPECT_EQ(page.Text(kMaker), "Philips_0");
  EXPECT_EQ(page.CompensationTab(), "Philips");
  (void)page.Form().Tab("Philips");
  page.Choose(kName, "Beta");
  EXPECT_EQ(page.Text(kMaker), "Phoenix_2");
  EXPECT_EQ(page.CompensationTab(), "(Philips)");
  EXPECT_TRUE(page.Form().Tabs()[0].current) << "a disabled tab is left";
  page.Choose("Group Type", "3D");
  EXPECT_EQ(page.CompensationTab(), "OSRAM");
  page.Choose(kName, "Delta");
  EXPECT_EQ(page.CompensationTab(), "(OSRAM)") << "the code of the maker before stays";
  page.Choose("Group Type", "2D");
  page.Choose(kName, "alpha");
  EXPECT_EQ(page.Control(kMaker).Index(), -1) << "no listed maker";
  EXPECT_EQ(page.CompensationTab(), "(Philips)");
  EXPECT_EQ(page.Text(kIndex), "255");
}

TEST(LampWaveformPage, StoresTheBallastSettings) {
  WaveformPage page;
  page.Choose(kMaker, "Philips_0");
  page.Control(kIndex).SetText("3");
  EXPECT_FALSE(page.TakeChanged()) << "nothing is another";
  page.Choose(kMaker, "OSRAM_1");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.CompensationTab(), "OSRAM");
  for (const char* refused : {"256", "-1", "1.5", "x"}) {
    page.Control(kIndex).SetText(refused);
    EXPECT_THAT(page.TakeTexts(), ElementsAre(HasSubstr("Please enter an integer"))) << refused;
    auto& field = dynamic_cast<QLineEdit&>(page.Control(kIndex).Widget());
    EXPECT_TRUE(field.hasFocus()) << refused;
    EXPECT_EQ(field.selectedText(), refused) << "the next key replaces it";
    EXPECT_FALSE(page.Apply()) << refused;
    (void)page.TakeTexts();
    EXPECT_FALSE(page.TakeChanged()) << refused;
  }
  page.Control(kIndex).SetText("255");
  EXPECT_TRUE(page.TakeChanged());
  // A maker that is not listed stays when something else is stored.
  page.Choose(kName, "alpha");
  page.Control(kIndex).SetText("0");
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("makerCode=\"1\" waveformIndex=\"255\" uartFlag=\"3\""));
  EXPECT_THAT(page.Database(), HasSubstr("makerCode=\"12\" waveformIndex=\"0\" uartFlag=\"3\""));
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
}

TEST(LampWaveformPage, TakesAnIndexThatIsStillBeingTyped) {
  WaveformPage page;
  page.Control(kIndex).Type("1");
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("waveformIndex=\"31\""));
}

TEST(LampWaveformPage, MakesAWaveform) {
  WaveformPage page;
  page.interaction.OnDialog([](Form& dialog) {
    EXPECT_EQ(dialog.Title(), "New Waveform");
    EXPECT_FALSE(dialog.GetControl("OK").Enabled());
    dialog.GetControl("Title").SetText("x");
    EXPECT_TRUE(dialog.GetControl("OK").Enabled());
    dialog.GetControl("Title").SetText("");
    EXPECT_FALSE(dialog.GetControl("OK").Enabled());
    dialog.Press("Cancel");
  });
  page.Form().Press("New");
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
  EXPECT_FALSE(page.TakeChanged());

  page.Choose("Spin Factor", "2.5");
  page.MakeWaveform("ALPHA ");
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Chosen(), "2D/2.5/ALPHA ");
  EXPECT_EQ(page.Text(kMaker), "Unknown");
  EXPECT_EQ(page.Pulses().Rows(), 15) << "five revolutions";
  EXPECT_EQ(page.Pulses().Cell(14, 0), "B40");
  const LampWaveFormData made = page.Now().LampWaveformDB.back().LWData.at(0);
  EXPECT_EQ(made.CWType, "RGB");
  EXPECT_EQ(made.Attributes, LampWaveform());
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("<Waveform title=\"ALPHA \" wheel=\"RGB\">"));
}

TEST(LampWaveformPage, RefusesTitlesThatAreTakenOrReserved) {
  struct {
    const char* title;
    const char* caption;
    const char* text;
  } const refused[] = {
      {"Beta", "Duplicate Waveform Name",
       "A waveform with the name 'Beta' already exists. Please enter a different name."},
      {"(NONE)", "Wrong Waveform Name",
       "Cannot use \"(None)\" as waveform name. Please enter a different name."},
      {"Gamma", "Duplicate Waveform Name",
       "Waveform 'Gamma' is already associated with '3D' Group Type and '2.0x' "
       "SpinFactor.\n\nPlease use different name for the new waveform."}};
  for (const auto& each : refused) {
    WaveformPage page;
    const std::string titles = page.Titles();
    page.MakeWaveform(each.title);
    const auto told = page.interaction.TakeMessages();
    ASSERT_EQ(told.size(), 1u) << each.title;
    EXPECT_EQ(told[0].text, each.text);
    EXPECT_EQ(told[0].caption, each.caption);
    EXPECT_EQ(told[0].style, msgbox::kIconError);
    EXPECT_EQ(page.Titles(), titles);
    EXPECT_FALSE(page.TakeChanged());
  }
  WaveformPage page;
  page.interaction.OnDialog([](Form& dialog) {
    dialog.GetControl("Title").SetText("(none)");
    dialog.Press("OK");
    EXPECT_TRUE(dialog.GetControl("Title").Widget().hasFocus()) << "the dialog stays open";
    dialog.GetControl("Title").SetText("None");
    dialog.Press("OK");
  });
  page.Form().Press("New");
  EXPECT_EQ(page.TakeTexts().size(), 1u);
  EXPECT_EQ(page.Chosen(), "2D/2.0/None");
}

TEST(LampWaveformPage, DeletesTheChosenWaveform) {
  WaveformPage page;
  page.Choose(kName, "Beta");
  page.Form().Press("Delete");
  const auto told = page.interaction.TakeMessages();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_EQ(told[0].text, "Are you sure you want to delete waveform: \"Beta\"?");
  EXPECT_EQ(told[0].caption, "Delete Waveform");
  EXPECT_EQ(told[0].answer, msgbox::kAnswerNo) << "the default";
  {
    QScopedValueRollback<bool> alone(OstCommandLineInfo::c_instance.nonInteractive, true);
    page.Form().Press("Delete");
  }
  EXPECT_FALSE(page.TakeChanged());
  page.interaction.Answer(msgbox::kAnswerYes);
  page.Form().Press("Delete");
  EXPECT_EQ(page.Titles(), "2D/2.0: Alpha alpha; 3D/2.0: Gamma Delta; ");
  EXPECT_EQ(page.Chosen(), "2D/2.0/Alpha");
  EXPECT_TRUE(page.TakeChanged());

  page.Choose("Group Type", "3D");
  for (int i = 0; i < 2; ++i) {
    page.interaction.Answer(msgbox::kAnswerYes);
    page.Form().Press("Delete");
  }
  EXPECT_FALSE(page.Control("Delete").Enabled());
  EXPECT_FALSE(page.Control("Pulses").Visible());
  EXPECT_EQ(page.Text(kIndex), "");
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), Not(HasSubstr("Gamma")));
  EXPECT_THAT(page.Database(), HasSubstr("<Waveforms groupType=\"3D\" spinFactor=\"2\"/>"));
}

TEST(LampWaveformPage, AChangedWheelKeepsThePulsesOfItsSegments) {
  const std::string old = "<Waveforms groupType='2D' spinFactor='2'>" +
                          Waveform("Old", 0, 0, " wheel='RGBW' note='kept'") + "</Waveforms>";
  WaveformPage page(old, kGroups,
                    "<ColorWheel number='0'><Segments><Segment color='Yellow' degrees='180'/>"
                    "<Segment color='Red' degrees='180'/></Segments></ColorWheel>");
  EXPECT_TRUE(page.TakeChanged());
  const LampWaveFormData waveform = page.Now().LampWaveformDB[0].LWData[0];
  EXPECT_EQ(waveform.CWType, "YR");
  EXPECT_EQ(waveform_test::Keys(waveform.VecPulses), "(Y00) R00 (Y10) (R10)");
  EXPECT_EQ(waveform.VecPulses[1].m_Amp, 1.5);
  EXPECT_EQ(page.Pulses().Rows(), 4);
  EXPECT_TRUE(page.Apply());
  EXPECT_THAT(page.Database(), HasSubstr("title=\"Old\" wheel=\"YR\" note=\"kept\""));
  EXPECT_THAT(page.Database(), HasSubstr("<ColorWheel number='0'><Segments>"));
}

TEST(LampWaveformPage, FollowsTheWheelThatItsOwnPageApplied) {
  WaveformPage page;
  auto& pages = page.project.Session().Pages();
  page.Control(kIndex).SetText("77");
  auto wheel = automation::OpenPage(pages, "ColorWheelPage");
  wheel.GetTable("Segment Geometry").SetCell(1, 0, "White");
  auto& wrapper = automation::ActivatePage(pages, "SysDefLampWaveformPage");
  EXPECT_EQ(page.Pulses().Cell(1, 0), "G00") << "not applied yet";
  ASSERT_TRUE(pages.Apply("ColorWheelPage"));
  (void)automation::ActivatePage(pages, "SysDefLampWaveformPage");
  EXPECT_EQ(page.Pulses().Cell(0, 1), "Yes");
  EXPECT_EQ(page.Pulses().Cell(1, 0), "W00");
  EXPECT_EQ(page.Text(kIndex), "77") << "what was edited here stays";

  auto& services = Framework::PageHost::Services(wrapper);
  std::string data = services.ExportData().ToText(platform::xml::TextForm::kBare);
  const std::string red = "<Color>0</Color>";
  data.replace(data.find(red), red.size(), "<Color>6</Color>");
  services.ImportData(platform::xml::Document::Parse(data));
  (void)automation::ActivatePage(pages, "SysDefLampWaveformPage");
  EXPECT_EQ(page.Pulses().Cell(0, 0), "Y00") << "what was imported here stays";
}

TEST(LampWaveformPage, AWheelWithoutSegmentsShowsTheMessageOfTheEmptyTable) {
  WaveformPage page(kWaveforms, kGroups, "");
  ASSERT_EQ(page.Pulses().Rows(), 1);
  EXPECT_EQ(page.Pulses().Columns(), 1);
  EXPECT_EQ(page.Pulses().Cell(0, 0),
            "No Timing/Color Wheel Segment data available.\n Select suitable Inputs to generate "
            "data");
  page.Pulses().ClickCell(0, 0);
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
}

TEST(LampWaveformPulses, AreAddedChangedAndDeleted) {
  WaveformPage page;
  page.LeavePulse(1, {"140.5", "30", "200", "40"}, "Cancel");
  EXPECT_THAT(page.Pulses().Selected(), ElementsAre(std::pair(1, 1))) << "also in the picture";
  page.LeavePulse(1, {"100", "30", "200", "40"});
  EXPECT_THAT(page.TakeTexts(), ElementsAre(HasSubstr("No pulse added")));
  EXPECT_FALSE(page.TakeChanged());
  page.LeavePulse(1, {"140.5", "30", "200", "40"});
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Pulses().Cell(1, 1), "Yes");
  PulseInfo pulse = page.Now().LampWaveformDB[0].LWData[0].VecPulses[1];
  EXPECT_EQ(pulse.m_strCWSeg, "G00");
  EXPECT_EQ(pulse.m_Amp, 1.405);
  EXPECT_DOUBLE_EQ(pulse.m_LeadEdge, 30 * 60e-6 * 360);
  EXPECT_DOUBLE_EQ(pulse.m_Width, 200 * 60e-6 * 360);
  EXPECT_DOUBLE_EQ(pulse.m_TrailEdge, 40 * 60e-6 * 360);

  page.LeavePulse(1, {"0", "0", "0", "0"});
  EXPECT_TRUE(page.TakeChanged()) << "Yes is the question's default";
  EXPECT_THAT(page.TakeTexts(), ElementsAre(HasSubstr("Pulse will be deleted")));
  EXPECT_EQ(page.Pulses().Cell(1, 2), "Add...");
  page.interaction.Answer(msgbox::kAnswerNo);
  page.LeavePulse(0, {"100"});
  EXPECT_EQ(page.TakeTexts().size(), 1u);
  EXPECT_FALSE(page.TakeChanged());
  page.LeavePulse(0, {"160"});
  page.interaction.Answer(msgbox::kAnswerYes);
  page.LeavePulse(0, {}, "Delete Pulse");
  pulse = page.Now().LampWaveformDB[0].LWData[0].VecPulses[0];
  EXPECT_FALSE(pulse.m_IsPulse);
  EXPECT_EQ(pulse.m_Amp, 1.6);
  EXPECT_EQ(pulse.m_Width, 8.640000000000001) << "a deleted pulse keeps its values";
  EXPECT_EQ(page.Now().LampWaveformDB[0].LWData[1].VecPulses[0].m_Amp, 1.5) << "another waveform's";
}

TEST(LampWaveformPulses, AnEditThatChangesNothingStoresNothing) {
  WaveformPage page;
  const std::string before = page.Database();
  page.LeavePulse(0, {"150", "50", "400", "50"});
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_TRUE(page.Apply());
  EXPECT_EQ(page.Database(), before);
}

TEST(LampWaveformPulses, WithoutARateTheEditorSaysSo) {
  WaveformPage page(kWaveforms,
                    "<GroupType title='2D'><Rate hertz='60'/><SpinFactor ratio='2'/></GroupType>");
  page.Pulses().ClickCell(0, 2);
  EXPECT_THAT(page.TakeTexts(), ElementsAre("The group type '2D' has no rate selected."));
  EXPECT_FALSE(page.TakeChanged());
}

TEST(LampWaveformPulses, ThePictureSelectsAndOpensThem) {
  WaveformPage page;
  auto& view = page.View();
  const auto click = [&](std::optional<QPointF> place) {
    ASSERT_TRUE(place);
    QTest::mouseClick(&view, Qt::LeftButton, {}, place->toPoint());
  };
  click(view.PulsePlace(0));
  EXPECT_THAT(page.Pulses().Selected(), ElementsAre(std::pair(0, 0)));
  EXPECT_THAT(view.accessibleDescription().toStdString(), HasSubstr("R00: 150 %"));
  click(view.SegmentPlace(4));
  EXPECT_THAT(page.Pulses().Selected(), ElementsAre(std::pair(4, 4)));
  EXPECT_FALSE(view.PulsePlace(4));
  // A double click adds a pulse on a segment without one; the picture follows.
  page.interaction.OnDialog([](Form& dialog) {
    EXPECT_EQ(dialog.Title(), "Add Pulse");
    dialog.GetControl("Amplitude %").SetText("50");
    dialog.GetControl("Width (usecs)").SetText("300");
    dialog.Press("OK");
  });
  QTest::mouseDClick(&view, Qt::LeftButton, {}, view.SegmentPlace(4)->toPoint());
  EXPECT_THAT(page.TakeTexts(), IsEmpty());
  EXPECT_TRUE(page.TakeChanged());
  ASSERT_TRUE(view.PulsePlace(4));
  click(view.PulsePlace(0));
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_THAT(page.Pulses().Selected(), ElementsAre(std::pair(1, 1)));
  // Zoomed in, the view follows the selection.
  for (int i = 0; i < 8; ++i) QTest::keyClick(&view, Qt::Key_Plus);
  page.Pulses().Select({{5, 5}});
  EXPECT_FALSE(view.Window().ShowsAll());
  EXPECT_TRUE(view.rect().contains(view.SegmentPlace(5)->toPoint()));
  QTest::keyClick(&view, Qt::Key_Home);
  EXPECT_TRUE(view.Window().ShowsAll());
}

}  // namespace
