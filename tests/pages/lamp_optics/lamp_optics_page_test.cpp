// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/lamp_optics_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <fstream>
#include <sstream>

#include "host/data/lamp_optics_data.h"
#include "host/gui/file_dialog_ex.h"
#include "host/gui/message_box.h"
#include "support/page_form.h"
#include "widgets/line_chart.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string Lamp(const std::string& name, const std::string& more = {}) {
  return "<Lamp name=\"" + name + "\" " + more +
         R"(><Response><Point nanometers="450" value="2"/><Point nanometers="550" value="4"/>)" +
         "</Response></Lamp>";
}

std::string Optics(const std::string& name) {
  return "<Optics name=\"" + name +
         R"("><Response><Point nanometers="400" value="0.5"/><Point nanometers="500" value="0.5"/>)"
         "</Response></Optics>";
}

std::string Stored(const std::string& lamps, const std::string& optics) {
  return "<RunTimeDB><LampOptics>" + lamps + optics + "</LampOptics></RunTimeDB>";
}

const std::string kTwoLamps = R"(<Lamps current="2">)" + Lamp("Xenon", R"(totalLumens="1.2345")") +
                              Lamp("", R"(totalLumens="8500.0625" opticsFlag="1")") + "</Lamps>";
const std::string kTwoOptics = R"(<OpticsLibrary current="1" fullOnContrastRatio="1500.0625">)" +
                               Optics("Lens") + Optics("Dichroic") + "</OpticsLibrary>";

struct Page : test::PageForm<LampOpticsData> {
  explicit Page(const std::string& lamps = kTwoLamps, const std::string& optics = kTwoOptics)
      : PageForm("LampOpticsPage", Stored(lamps, optics)) {
    (void)Form();
  }
  void Load(const char* library, const fs::path& file) {
    interaction.ChooseFile(file);
    Control((std::string(library) + "/Load").c_str()).Click();
  }
  fs::path Write(const std::string& name, const std::string& text) {
    return project.Folder().Write(name, text);
  }
  std::vector<std::string> Items(const char* list) {
    std::vector<std::string> items;
    for (const QString& item : Control(list).Items()) items.push_back(item.toStdString());
    return items;
  }
  GUI::LineChart& Chart(const char* name) {
    return dynamic_cast<GUI::LineChart&>(Control(name).Widget());
  }
  QAbstractButton& Hidden(const char* name) {
    return dynamic_cast<QAbstractButton&>(Control(name).Widget());
  }
};

TEST(LampOpticsPage, ShowsTheLibrariesAndTakesNothingThatNobodyEdited) {
  Page page;
  EXPECT_THAT(page.Items("Lamp/Name"), ElementsAre("Xenon", "Unnamed"));
  EXPECT_EQ(page.Text("Lamp/Name"), "Unnamed");
  EXPECT_EQ(page.Text("Total Lumens"), "8500.1");
  EXPECT_TRUE(page.Control("Lamp/Indicator").Visible());
  EXPECT_EQ(page.Text("Optics/Name"), "Lens");
  EXPECT_EQ(page.Text("Full-On Contrast Ratio"), "1500.1");
  const LampOpticsData before = page.Now();
  page.Control("Total Lumens").SetText("8500.1");
  page.Control("Lamp/Name").Leave();
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_EQ(page.Now(), before);
}

TEST(LampOpticsPage, ChoosingMakesCurrent) {
  Page page;
  page.Control("Lamp/Name").Choose("Xenon");
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Now().Lamp.CurrentLamp, 0);
  EXPECT_EQ(page.Text("Total Lumens"), "1.2");
  EXPECT_FALSE(page.Control("Lamp/Indicator").Visible());
  page.Control("Lamp/Name").Choose("Xenon");
  EXPECT_FALSE(page.TakeChanged());
  page.Control("Optics/Name").Choose("Dichroic");
  EXPECT_EQ(page.Now().Optics.CurrentOptics, 1);
}

TEST(LampOpticsPage, WithoutACurrentRecordItsValueIsEmpty) {
  Page page("", "<OpticsLibrary>" + Optics("Lens") + "</OpticsLibrary>");
  for (const char* box : {"Total Lumens", "Full-On Contrast Ratio"}) {
    EXPECT_EQ(page.Text(box), "");
    EXPECT_FALSE(page.Control(box).Enabled());
  }
  EXPECT_FALSE(page.Control("Lamp/Remove").Enabled());
  EXPECT_TRUE(page.Control("Optics/Remove").Enabled());
  page.Control("Optics/Remove").Click();
  EXPECT_THAT(page.Items("Optics/Name"), SizeIs(1)) << "there is no current one";
  page.Control("Lamp/Name").SetText("typed");
  EXPECT_EQ(page.Text("Lamp/Name"), "");
  EXPECT_FALSE(page.TakeChanged());
  page.Control("Optics/Name").Type("x");
  EXPECT_EQ(page.Text("Optics/Name"), "Lens") << "chosen, not renamed";
  page.Control("Optics/Name").Leave();
  EXPECT_EQ(page.Now().Optics.Optics[0].Name, "Lens");
  EXPECT_EQ(page.Now().Optics.CurrentOptics, 0);
}

TEST(LampOpticsPage, AnEmptyListTakesNoName) {
  Page page("", "");
  for (const char* list : {"Lamp/Name", "Optics/Name"}) {
    page.Control(list).SetText("typed");
    EXPECT_EQ(page.Text(list), "");
  }
  EXPECT_FALSE(page.TakeChanged());
}

TEST(LampOpticsPage, RemovingMakesTheOneBeforeCurrent) {
  Page page;
  page.Control("Lamp/Remove").Click();
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_EQ(page.Text("Lamp/Name"), "Xenon");
  page.Control("Lamp/Remove").Click();
  EXPECT_THAT(page.Items("Lamp/Name"), IsEmpty());
  EXPECT_EQ(page.Text("Lamp/Name"), "");
  EXPECT_FALSE(page.Control("Total Lumens").Enabled());
  EXPECT_EQ(page.Now().Lamp.CurrentLamp, -1);
  page.Control("Optics/Remove").Click();
  EXPECT_THAT(page.Items("Optics/Name"), ElementsAre("Dichroic"));
  EXPECT_EQ(page.Now().Optics.CurrentOptics, -1) << "the first one was removed";
}

// The readers' own files, loaded through the dialog: what is accepted comes into the library, what
// is not leaves everything as it was; either way the page says what was in the file.
TEST(LampOpticsPage, LoadsWhatHasPoints) {
  int accepted = 0, refused = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(SYSDEF_SOURCE_DIR) /
                                                  "tests/pages/lamp_optics/rules/files")) {
    const fs::path& file = entry.path();
    const bool isLamp = file.extension() == ".lmp";
    if (!isLamp && file.extension() != ".opt") continue;
    SCOPED_TRACE(file.filename());
    std::stringstream expected;
    expected << std::ifstream(file.string() + ".txt").rdbuf();
    const bool isAccepted = expected.str().find("\nnot accepted\n") == std::string::npos;
    ++(isAccepted ? accepted : refused);
    Page page;
    const LampOpticsData before = page.Now();
    const char* list = isLamp ? "Lamp/Name" : "Optics/Name";
    page.Load(isLamp ? "Lamp" : "Optics", file);
    EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty());
    EXPECT_EQ(page.TakeChanged(), isAccepted);
    EXPECT_THAT(page.Items(list), SizeIs(isAccepted ? 3 : 2));
    if (isAccepted) {
      EXPECT_EQ(page.Control(list).Index(), 2) << "becomes the current one";
    } else {
      EXPECT_EQ(page.Now(), before);
    }
    const std::string report = page.Text("Load Report") + "\n";
    const std::string name = file.filename().string();
    EXPECT_THAT(report, HasSubstr(name + (isAccepted ? ": loaded\n" : ": not loaded\n")));
    EXPECT_THAT(expected.str(), testing::EndsWith(report.substr(report.find('\n'))));
    EXPECT_TRUE(page.Apply());
    page.Reopen();
    EXPECT_THAT(page.Items(list), SizeIs(isAccepted ? 3 : 2));
  }
  EXPECT_GE(accepted, 8);
  EXPECT_GE(refused, 4);
}

TEST(LampOpticsPage, ShowsWhatWasInALampFile) {
  Page page("", "");
  page.Load("Lamp", page.Write("x.lmp",
                               "LAMP_NAME Xenon 300W\nTOTAL_LUMENS 12000\nRESPONSE_DATA_START\n"
                               "450 0.8\n550 1.0\n650 0.7\nRESPONSE_DATA_END\n"));
  EXPECT_EQ(page.Text("Lamp/Name"), "Xenon 300W");
  EXPECT_EQ(page.Text("Total Lumens"), "12000.0");
  const SLampRecord lamp = page.Now().Lamp.Lamps[0];
  EXPECT_EQ(lamp.LampPower, -1.0);
  EXPECT_THAT(lamp.Response, ElementsAre(SpectralPoint{450, 0.8}, SpectralPoint{550, 1.0},
                                         SpectralPoint{650, 0.7}));
  page.Load("Lamp", page.project.Folder().Path() / "gone.lmp");
  EXPECT_THAT(page.Text("Load Report"), HasSubstr("gone.lmp: not loaded\nno points\n"));
  page.interaction.ChooseFile({});
  page.Control("Lamp/Load").Click();
  EXPECT_THAT(page.Items("Lamp/Name"), SizeIs(1)) << "cancelled";
}

TEST(LampOpticsPage, TakesFiveRecords) {
  Page page;
  const fs::path lamp = page.Write("x.lmp", "RESPONSE_DATA_START\n450 1\n");
  const fs::path optics = page.Write("x.opt", "OPTICS_DATA_START\n450 1\n");
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(page.Control("Lamp/Load").Enabled());
    page.Load("Lamp", lamp);
    page.Load("Optics", optics);
  }
  EXPECT_FALSE(page.Control("Lamp/Load").Enabled());
  EXPECT_FALSE(page.Control("Optics/Load").Enabled());
  page.Control("Lamp/Remove").Click();
  EXPECT_TRUE(page.Control("Lamp/Load").Enabled());
}

TEST(LampOpticsPage, AsksForFilesInTheLibraryFolders) {
  Page page;
  std::vector<CFileDialogEx> asked;
  SetFileChooser([&asked](const CFileDialogEx& dialog) {
    asked.push_back(dialog);
    return std::nullopt;
  });
  const fs::path folder = page.project.Folder().Path();
  page.Control("Lamp/Load").Click();
  fs::create_directory(folder / "Lamps");
  fs::create_directory(folder / "Optics");
  page.Control("Lamp/Load").Click();
  page.Control("Optics/Load").Click();
  page.Hidden("Enable Lamp Recycling Modelling").click();
  page.Hidden("Load Lamp Recycling Response File...").click();
  ASSERT_THAT(asked, SizeIs(4));
  for (const CFileDialogEx& dialog : asked) EXPECT_EQ(dialog.title, "Load");
  EXPECT_EQ(asked[0].startFolder, fs::path()) << "there was no such folder";
  EXPECT_EQ(asked[1].startFolder, folder / "Lamps");
  EXPECT_EQ(asked[1].filter, "Lamp File (*.lmp)|*.lmp|All Files (*.*)|*.*||");
  EXPECT_EQ(asked[1].defaultExtension, "*.lmp");
  EXPECT_EQ(asked[2].startFolder, folder / "Optics");
  EXPECT_EQ(asked[2].filter, "Optics Files (*.opt)|*.opt|All Files (*.*)|*.*||");
  EXPECT_EQ(asked[2].defaultExtension, "*.opt");
  EXPECT_EQ(asked[3].startFolder, folder / "Lamps");
  EXPECT_EQ(asked[3].filter, "Lamp Recycling File (*.flt)|*.flt|All Files (*.*)|*.*||");
  EXPECT_EQ(asked[3].defaultExtension, "*.flt");
}

struct Name {
  const char* list;
  std::string typed;
  std::string stored;   ///< of the current record
  std::string message;  ///< empty: none
};

void PrintTo(const Name& name, std::ostream* out) {
  *out << name.list << ": " << name.typed.substr(0, 20);
}

class LampOpticsNames : public testing::TestWithParam<Name> {};

TEST_P(LampOpticsNames, AreTakenWhenTheListIsLeftUnlessAnotherHasThem) {
  const Name& name = GetParam();
  const bool isLamp = std::string(name.list) == "Lamp/Name";
  Page page;
  if (isLamp) page.Control("Lamp/Name").Choose("Xenon");
  page.TakeChanged();
  page.Control(name.list).SetText(QString::fromStdString(name.typed));
  const auto messages = page.interaction.TakeMessages();
  ASSERT_THAT(messages, SizeIs(name.message.empty() ? 0 : 1));
  if (!name.message.empty()) {
    EXPECT_EQ(messages[0].text, name.message);
    EXPECT_EQ(messages[0].style, msgbox::kIconError);
  }
  const LampOpticsData data = page.Now();
  EXPECT_EQ(isLamp ? data.Lamp.Lamps[0].Name : data.Optics.Optics[0].Name, name.stored);
  EXPECT_EQ(isLamp ? data.Lamp.CurrentLamp : data.Optics.CurrentOptics, 0);
  EXPECT_EQ(page.Text(name.list), name.stored) << "what is shown is what is stored";
  EXPECT_EQ(page.TakeChanged(), name.stored != (isLamp ? "Xenon" : "Lens"));
  // The mark is gone: leaving again says nothing.
  page.Control(name.list).Type("");
  page.Control(name.list).Leave();
  EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty());
}

const std::string kLongName(300, 'n');
INSTANTIATE_TEST_SUITE_P(All, LampOpticsNames,
                         testing::Values(Name{"Lamp/Name", "UHP 200 W", "UHP 200 W", ""},
                                         Name{"Lamp/Name", "Xenon", "Xenon", ""},
                                         Name{"Lamp/Name", "xenon", "xenon", ""},
                                         Name{"Lamp/Name", "", "Xenon", "Lamp:\"\" already exists"},
                                         Name{"Lamp/Name", "Unnamed", "Unnamed", ""},
                                         Name{"Lamp/Name", kLongName, kLongName.substr(0, 255), ""},
                                         Name{"Optics/Name", "Dichroic", "Lens",
                                              "Optics:\"Dichroic\" already exists"},
                                         Name{"Optics/Name", "dichroic", "dichroic", ""},
                                         Name{"Optics/Name", "Lens 2", "Lens 2", ""}));

TEST(LampOpticsPage, ChoosingAnEntryDropsWhatWasTyped) {
  Page page;
  page.Control("Lamp/Name").Type("x");
  page.Control("Lamp/Name").Choose("Unnamed");
  page.Control("Lamp/Name").Leave();
  EXPECT_EQ(page.Now().Lamp.Lamps[1].Name, "");
  EXPECT_FALSE(page.TakeChanged());
}

TEST(LampOpticsPage, ANameIsTakenByReturnAndByApplying) {
  Page page;
  page.Control("Optics/Name").Type("1\n");
  EXPECT_EQ(page.Now().Optics.Optics[0].Name, "1Lens");
  page.Control("Optics/Name").Type("2");
  EXPECT_TRUE(page.Apply());
  EXPECT_EQ(page.Now().Optics.Optics[0].Name, "1Lens2");
  EXPECT_THAT(page.Database(), HasSubstr("name=\"1Lens2\""));
}

struct Value {
  const char* box;
  const char* text;
  const char* message;  ///< empty: taken
};

void PrintTo(const Value& value, std::ostream* out) { *out << value.box << ": " << value.text; }

class LampOpticsValues : public testing::TestWithParam<Value> {};

TEST_P(LampOpticsValues, AreTakenWithinTheirLimits) {
  const Value& value = GetParam();
  Page page;
  const LampOpticsData before = page.Now();
  page.Control(value.box).SetText(value.text);
  const auto messages = page.interaction.TakeMessages();
  const bool isTaken = *value.message == 0;
  ASSERT_THAT(messages, SizeIs(isTaken ? 0 : 1));
  EXPECT_EQ(page.TakeChanged(), isTaken);
  EXPECT_EQ(page.Apply(), isTaken);
  if (isTaken) return;
  EXPECT_EQ(messages[0].text, value.message);
  EXPECT_EQ(messages[0].style, msgbox::kIconWarning);
  EXPECT_EQ(page.Now(), before);
  EXPECT_EQ(page.Text(value.box), value.text);
}

constexpr const char* kLumens = "Please enter a number between 0 and 500000.";
constexpr const char* kContrast = "Please enter a number between 1 and 1e+06.";
INSTANTIATE_TEST_SUITE_P(All, LampOpticsValues,
                         testing::Values(Value{"Total Lumens", "0", ""},
                                         Value{"Total Lumens", "500000", ""},
                                         Value{"Total Lumens", "500000.1", kLumens},
                                         Value{"Total Lumens", "-0.1", kLumens},
                                         Value{"Total Lumens", "", "Please enter a number."},
                                         Value{"Full-On Contrast Ratio", "1", ""},
                                         Value{"Full-On Contrast Ratio", "1000000", ""},
                                         Value{"Full-On Contrast Ratio", "0.9", kContrast},
                                         Value{"Full-On Contrast Ratio", "1000000.1", kContrast}));

TEST(LampOpticsPage, ALampsLumensAreItsOwn) {
  Page page;
  page.Control("Total Lumens").SetText("77");
  const LampOpticsData data = page.Now();
  EXPECT_EQ(data.Lamp.Lamps[1].TotalLumens, 77);
  EXPECT_EQ(data.Lamp.Lamps[0].TotalLumens, 1.2345);
  EXPECT_EQ(page.Text("Total Lumens"), "77.0");
  EXPECT_EQ(data.Optics.FullOnContrastRatio, 1500.0625) << "never edited";
}

TEST(LampOpticsPage, DrawsLampOpticsAndTheirProduct) {
  Page page;
  GUI::LineChart& lamp = page.Chart("Lamp Response");
  ASSERT_EQ(lamp.SeriesCount(), 2);
  EXPECT_EQ(lamp.Points(0), (QList<QPointF>{{450, 2}, {550, 4}}));
  EXPECT_EQ(lamp.Points(1), (QList<QPointF>{{450, 1}, {500, 1.5}}));
  lamp.SetCursor({1, 1});
  EXPECT_EQ(lamp.CursorText(), "through Lens\nWavelength (nm): 500\nRelative power: 1.5");
  ASSERT_EQ(page.Chart("Optics Transmission").SeriesCount(), 2);
  EXPECT_EQ(page.Chart("Optics Transmission").Points(1).size(), 2);
  lamp.Zoom(0.5);
  const double zoomed = lamp.VisibleRange(GUI::LineChart::Axis::kX).lower;
  page.Control("Total Lumens").SetText("5");
  EXPECT_EQ(lamp.VisibleRange(GUI::LineChart::Axis::kX).lower, zoomed) << "nothing new to draw";
  page.Control("Optics/Remove").Click();
  EXPECT_EQ(lamp.SeriesCount(), 1);
  std::string big = "RESPONSE_DATA_START\n";
  for (int i = 0; i < 100000; ++i) big += std::to_string(i) + (i == 70001 ? " 9\n" : " 1\n");
  page.Load("Lamp", page.Write("big.lmp", big));
  EXPECT_LE(lamp.Points(0).size(), 4000);
  EXPECT_THAT(lamp.Points(0), testing::Contains(QPointF(70001, 9))) << "a peak is never lost";
}

// The recycling controls are there for the data's sake, and hidden.
TEST(LampOpticsPage, RecyclingWorksThoughItIsHidden) {
  Page page(R"(<Lamps current="1">)" + Lamp("Xenon") + Lamp("UHP") + "</Lamps>");
  QAbstractButton& enable = page.Hidden("Enable Lamp Recycling Modelling");
  QAbstractButton& load = page.Hidden("Load Lamp Recycling Response File...");
  EXPECT_FALSE(enable.isVisible() || load.isVisible());
  EXPECT_FALSE(load.isEnabled());
  enable.click();
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_TRUE(load.isEnabled());
  EXPECT_TRUE(page.Now().Lamp.Lamps[0].RecyclingEnabled);
  page.interaction.ChooseFile(page.Write("x.flt", "FILTER_DATA_START\n450 0.5\n460 0.6\n"));
  load.click();
  EXPECT_TRUE(page.TakeChanged());
  EXPECT_THAT(page.Now().Lamp.Lamps[0].Recycling, SizeIs(2));
  page.interaction.ChooseFile(page.Write("none.flt", "450 0.5\n"));
  load.click();
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_THAT(page.Now().Lamp.Lamps[0].Recycling, IsEmpty()) << "gone even then";
  page.Control("Lamp/Name").Choose("UHP");
  EXPECT_FALSE(enable.isChecked() || load.isEnabled());
}

struct ModelEntry {
  const char* box;
  const char* text;
  const char* shown;  ///< null: refused
};

void PrintTo(const ModelEntry& entry, std::ostream* out) {
  *out << entry.box << ": " << entry.text;
}

class OpticsModelEntries : public testing::TestWithParam<ModelEntry> {};

TEST_P(OpticsModelEntries, AreTakenWithinTheirLimits) {
  const ModelEntry& entry = GetParam();
  Page page;
  const LampOpticsData before = page.Now();
  page.interaction.OnDialog([&](automation::Form& dialog) {
    EXPECT_EQ(dialog.Title(), "Optics Model");
    dialog.GetControl(entry.box).SetText(entry.text);
    const auto messages = page.interaction.TakeMessages();
    EXPECT_THAT(messages, SizeIs(entry.shown ? 0 : 1));
    EXPECT_EQ(dialog.GetControl(entry.box).Text(), entry.shown ? entry.shown : entry.text);
    dialog.Press("OK");
    EXPECT_EQ(dialog.Open(), !entry.shown) << "OK refuses what leaving refuses";
    (void)page.interaction.TakeMessages();
    if (dialog.Open()) dialog.Press("Cancel");
    EXPECT_THAT(page.interaction.TakeMessages(), IsEmpty()) << "cancelling asks nothing";
  });
  page.Control("Edit Parametric...").Click();
  page.interaction.RethrowFailure();
  EXPECT_EQ(page.TakeChanged(), entry.shown != nullptr);
  EXPECT_EQ(page.Now() != before, entry.shown != nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, OpticsModelEntries,
                         testing::Values(ModelEntry{"Slope Factor SW", "1", "1.000"},
                                         ModelEntry{"Slope Factor SW", "1.001", nullptr},
                                         ModelEntry{"Slope Factor LW", "0.1239", "0.124"},
                                         ModelEntry{"Slope Factor LW", "-0.1", nullptr},
                                         ModelEntry{"50% Intersect SW", "360", "360.0"},
                                         ModelEntry{"50% Intersect SW", "359", nullptr},
                                         ModelEntry{"50% Intersect LW", "850", "850.0"},
                                         ModelEntry{"50% Intersect LW", "850.1", nullptr},
                                         ModelEntry{"Peak Transmission", "0.256", "0.26"},
                                         ModelEntry{"Peak Transmission", "1.1", nullptr},
                                         ModelEntry{"Blue Reduce", "-1", "-1.0"},
                                         ModelEntry{"Blue Reduce", "-1.1", nullptr},
                                         ModelEntry{"Peak Wavelength", "360", "360.0"},
                                         ModelEntry{"Peak Wavelength", "x", nullptr},
                                         ModelEntry{"Peaking", "0.5", "0.500"},
                                         ModelEntry{"Peaking", "2", nullptr}));

TEST(LampOpticsPage, TheModelIsEditedOnACopyAndDrawnAsItIsTyped) {
  Page page;
  page.interaction.OnDialog([](automation::Form& dialog) {
    auto& chart = dynamic_cast<GUI::LineChart&>(dialog.GetControl("Model Transmission").Widget());
    const auto at550 = [&chart] { return chart.Points(0)[190].y(); };
    EXPECT_EQ(chart.Points(0)[190].x(), 550);
    EXPECT_EQ(at550(), 1);
    dialog.GetControl("Peak Transmission").SetText("0.5");
    EXPECT_EQ(at550(), 0.5);
    dialog.GetControl("Peak Transmission").Type("\b\b4");
    EXPECT_EQ(at550(), 0.4) << "not left yet";
  });
  page.Control("Edit Parametric...").Click();
  page.interaction.RethrowFailure();
  EXPECT_FALSE(page.TakeChanged());
  EXPECT_EQ(page.Now().Optics.Model, OpticsModel()) << "cancelled";
  page.interaction.OnDialog([](automation::Form& dialog) { dialog.Press("OK"); });
  page.Control("Edit Parametric...").Click();
  EXPECT_FALSE(page.TakeChanged()) << "nothing was edited";
}

// Every field comes back from the database, what stands behind a free place too.
TEST(LampOpticsPage, EveryStoredValueComesBack) {
  Page page(R"(<Lamps current="3">)" + Lamp(" Xenon &lt;1&gt; ") + "<Lamp/>" +
                R"(<Lamp name="UHP" totalLumens="9" watts="3.5" opticsFlag="-2"><Response>)"
                R"(<Point nanometers="-4" value="1e300"/></Response><LumensByAperture>)"
                R"(<Point aperture="2.5" lumens="8"/></LumensByAperture>)"
                R"(<Recycling enabled="true"><Point nanometers="7" value="0.1"/></Recycling>)"
                R"(</Lamp><Lamp/></Lamps>)",
            R"(<OpticsLibrary current="0" fullOnContrastRatio="2000"/>)"
            R"(<OpticsModel shortEdgeSlopeFactor=".1" longEdgeSlopeFactor=".2" )"
            R"(shortEdgeNanometers="410" longEdgeNanometers="710" peaking=".3" )"
            R"(peakNanometers="560" peakTransmission=".4" blueReduce="-.5"/>)");
  const LampOpticsData data = page.Now();
  SLampRecord uhp;
  uhp.Name = "UHP";
  uhp.TotalLumens = 9;
  uhp.LampPower = 3.5;
  uhp.OpticsFlag = -2;
  uhp.Response = {{-4, 1e300}};
  uhp.LumensVsAperture = {{2.5, 8}};
  uhp.RecyclingEnabled = true;
  uhp.Recycling = {{7, 0.1}};
  EXPECT_EQ(data.Lamp.Lamps[0].Name, " Xenon <1> ");
  EXPECT_FALSE(data.Lamp.Lamps[1].InUse());
  EXPECT_EQ(data.Lamp.Lamps[2], uhp);
  EXPECT_EQ(data.Lamp.CurrentLamp, 2);
  EXPECT_EQ(data.Optics.CurrentOptics, -1);
  EXPECT_EQ(data.Optics.Model, (OpticsModel{0.1, 0.2, 410, 710, 0.3, 560, 0.4, -0.5}));
  EXPECT_EQ(page.Text("Lamp/Name"), "UHP") << "free places have no entry";
  EXPECT_TRUE(page.Apply());
  EXPECT_FALSE(page.project.Session().Database().Modified()) << "says the same as before";
  page.Control("Lamp/Name").Choose(" Xenon <1> ");
  EXPECT_EQ(page.Now().Lamp.CurrentLamp, 0);
}

}  // namespace
