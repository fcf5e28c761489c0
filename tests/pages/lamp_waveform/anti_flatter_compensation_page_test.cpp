// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/anti_flatter_compensation_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTest>

#include "automation/form.h"
#include "automation/interaction.h"
#include "host/gui/message_box.h"
#include "host/gui/tool.h"
#include "host/project/ost_command_line_info.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"

namespace {

using automation::Control;
using automation::Table;
using testing::IsEmpty;
using Spokes = std::map<std::string, bool>;
using VeskSystemDefinition::CAntiFlatterCompensationPage;

constexpr const char* kRatio = "Pulse/Plateau Ratio";
constexpr const char* kLength = "Pulse Length (@60Hz)";

/// A waveform of a three-color wheel whose ballast knows compensation pulses.
GUIInputsData MakeData() {
  GUIInputsData data = waveform_test::MakeInputs();
  LampWaveFormData waveform;
  waveform.WaveFormTitle = data.CurrentWaveformName = "Bright";
  waveform.Attributes.CompensationEnabled = true;
  waveform.Attributes.PulseLength = 250.12345;
  waveform.Attributes.PulsePlateauRatio = 120;
  waveform.Attributes.SpokePulses = {{"RG", true}, {"GB", false}, {"BR", false}};
  lamp_waveform::WaveformsOf(data, "2D", 2.0).push_back(waveform);
  data.BallastMakerCode = 0;
  return data;
}

class CompensationPageTest : public testing::Test {
 protected:
  CompensationPageTest() {
    page.SetInputData(&data);
    page.Refresh();
    page.show();
  }

  Control At(const char* name) { return automation::Form(page).GetControl(name); }
  Table Grid() { return automation::Form(page).GetTable("Spokes"); }
  std::string Text(const char* name) { return At(name).Text().toStdString(); }
  /// The rows with their check boxes: "RG+ GB- ".
  std::string Rows() {
    std::string rows;
    for (int row = 0; row < Grid().Rows(); ++row) {
      rows += Grid().Cell(row, 0).toStdString() + (Grid().Checked(row, 1) ? "+ " : "- ");
    }
    return rows;
  }
  LampWaveform& Stored() { return lamp_waveform::SelectedWaveform(data)->Attributes; }
  /// Whether the tool was told of an edit since the last call.
  bool TakeChanged() {
    const bool changed = tool.NeedToSave();
    EXPECT_EQ(tool.NeedToBuild(), changed && tool.BuildsOnChange());
    tool.SetNeedToSave(0);
    tool.SetNeedToBuild(0);
    return changed;
  }
  /// The message shown since the last call, which is an error.
  std::string TakeRefusal() {
    const auto messages = person.TakeMessages();
    if (messages.empty()) return "";
    EXPECT_EQ(messages.front().caption, "Invalid Input");
    EXPECT_EQ(messages.front().style, msgbox::kIconError);
    return messages.size() == 1 ? messages.front().text : "more than one";
  }
  bool FieldsEnabled() {
    const bool enabled = At(kRatio).Enabled();
    EXPECT_EQ(At(kLength).Enabled(), enabled);
    EXPECT_EQ(At("Spokes").Enabled(), enabled);
    return enabled;
  }

  GUIInputsData data = MakeData();
  Framework::Tool tool{"waveforms", "Waveforms", false};
  automation::Interaction person;
  CAntiFlatterCompensationPage page{"waveforms"};
};

TEST_F(CompensationPageTest, ShowsTheSelectedWaveform) {
  EXPECT_EQ(Text("Enable Compensation"), "Enable Anti-Flatter Pulse Compensation");
  EXPECT_TRUE(At("Enable Compensation").Checked());
  EXPECT_TRUE(FieldsEnabled());
  EXPECT_EQ(Text(kRatio), "120");
  EXPECT_EQ(Text(kLength), "250.123");
  EXPECT_EQ(Grid().Headers(), (QStringList{"Spoke Name", "Anti-Flatter Pulse?"}));
  EXPECT_EQ(Rows(), "RG+ GB- BR- ");
  EXPECT_FALSE(Grid().Editable(0, 0));
  EXPECT_FALSE(TakeChanged());
  GUIInputsData untouched = MakeData();
  EXPECT_EQ(Stored(), lamp_waveform::SelectedWaveform(untouched)->Attributes);

  data.CurrentWaveformName = "Other";
  page.Refresh();
  EXPECT_EQ(Text(kRatio) + Text(kLength) + Rows(), "");
  EXPECT_FALSE(FieldsEnabled());
  EXPECT_FALSE(At("Enable Compensation").Enabled());
  page.SetInputData(nullptr);
  page.Refresh();
  EXPECT_FALSE(FieldsEnabled());
}

TEST_F(CompensationPageTest, IsCalledByTheBallastMaker) {
  const struct {
    int maker;
    const char* caption;
    const char* heading;
  } cases[] = {{1, "Enable S Pulse Compensation", "S Pulse?"},
               {255, "Enable S Pulse Compensation", "S Pulse?"},
               {256, "Enable S Pulse Compensation", "S Pulse?"},
               {0, "Enable Anti-Flatter Pulse Compensation", "Anti-Flatter Pulse?"}};
  const LampWaveform before = Stored();
  for (const auto& [maker, caption, heading] : cases) {
    data.BallastMakerCode = maker;
    page.Refresh();
    EXPECT_EQ(Text("Enable Compensation"), caption) << maker;
    EXPECT_EQ(Grid().Headers().last(), heading) << maker;
    EXPECT_EQ(Rows(), "RG+ GB- BR- ") << maker;
  }
  EXPECT_EQ(Stored(), before);
}

TEST_F(CompensationPageTest, TakesValuesWithinTheirLimits) {
  const char* const kTaken = "taken";
  const char* const kSame = "";
  const char* const kRatioRefusal = "Pulse Plateau Ratio should be more than 100%.";
  const char* const kLengthRefusal = "Pulse Length should be a non zero positive number.";
  const struct {
    const char* field;
    const char* text;
    const char* shown;
    const char* outcome;
  } cases[] = {{kRatio, "100", "120", kRatioRefusal},     {kRatio, "101", "101", kTaken},
               {kRatio, "", "101", kRatioRefusal},        {kRatio, "0101", "101", kSame},
               {kRatio, "1-3.7x0e", "1370", kTaken},  // letters cannot be typed, only pasted
               {kLength, "250.123", "250.123", kSame},    {kLength, "250.12345", "250.123", kSame},
               {kLength, "0", "250.123", kLengthRefusal}, {kLength, "", "250.123", kLengthRefusal},
               {kLength, "300.5", "300.500", kTaken},     {kLength, "0.0004", "0.000", kTaken},
               {kLength, "0", "0.000", kLengthRefusal}};
  for (const auto& [field, text, shown, outcome] : cases) {
    const LampWaveform before = Stored();
    const bool taken = outcome == kTaken;
    At(field).SetText(text);
    EXPECT_EQ(Text(field), shown) << text;
    EXPECT_EQ(TakeRefusal(), taken ? "" : outcome) << text;
    EXPECT_EQ(Stored() != before, taken) << text;
    EXPECT_EQ(TakeChanged(), taken) << text;
  }
  EXPECT_EQ(Stored().PulsePlateauRatio, 1370);
  EXPECT_EQ(Stored().PulseLength, 0.0004);
  QApplication::clipboard()->setText("150abc");
  At(kRatio).Type("");
  auto& field = dynamic_cast<QLineEdit&>(At(kRatio).Widget());
  field.selectAll();
  field.paste();
  At(kRatio).Leave();
  EXPECT_EQ(Stored().PulsePlateauRatio, 150);
  EXPECT_EQ(Text(kRatio), "150");
}

TEST_F(CompensationPageTest, AFieldThatNobodyEditedStoresNothing) {
  Stored().PulsePlateauRatio = 50;
  Stored().PulseLength = -3;
  page.Refresh();
  for (const char* name : {kRatio, kLength}) {
    At(name).Type("");
    At(name).Leave();
  }
  EXPECT_EQ(TakeRefusal(), "");
  EXPECT_FALSE(TakeChanged());
  EXPECT_EQ(Stored().PulsePlateauRatio, 50);
  // A text that was typed and not left yet is taken when it is asked for, and goes with a showing.
  At(kRatio).Type("\b150");
  page.TakeEdits();
  EXPECT_EQ(Stored().PulsePlateauRatio, 5150);
  At(kRatio).Type("0");
  page.Refresh();
  At(kRatio).Leave();
  EXPECT_EQ(Stored().PulsePlateauRatio, 5150);
}

TEST_F(CompensationPageTest, DisablingKeepsTheValues) {
  const LampWaveform before = Stored();
  At("Enable Compensation").Click();
  EXPECT_TRUE(TakeChanged());
  EXPECT_FALSE(FieldsEnabled());
  EXPECT_EQ(Text(kRatio) + Text(kLength) + Rows(), "");
  LampWaveform expected = before;
  expected.CompensationEnabled = false;
  EXPECT_EQ(Stored(), expected);
  page.Refresh();
  EXPECT_EQ(Text(kRatio) + Text(kLength) + Rows(), "");

  At("Enable Compensation").Click();
  EXPECT_TRUE(TakeChanged());
  EXPECT_TRUE(FieldsEnabled());
  EXPECT_EQ(Text(kRatio) + " " + Text(kLength) + " " + Rows(), "120 250.123 RG+ GB- BR- ");
  EXPECT_EQ(Stored(), before);
}

TEST_F(CompensationPageTest, SpokesFollowTheWheel) {
  auto& segments = data.ColorWheel.Segments;
  segments = {segments[0], segments[1], segments[0], segments[1]};
  page.Refresh();
  EXPECT_EQ(Rows(), "RG+ GR- RG1- GR1- ");
  EXPECT_EQ(Stored().SpokePulses,
            (Spokes{{"RG", true}, {"GR", false}, {"RG1", false}, {"GR1", false}}));
  // Without a rate the wheel cannot be timed: nothing is known of its spokes.
  data.PCGroups[0].Rates.clear();
  page.Refresh();
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Stored().SpokePulses.size(), 4);
}

TEST_F(CompensationPageTest, ACheckBoxIsItsSpokesPulse) {
  Grid().Toggle(2, 1);
  EXPECT_EQ(Stored().SpokePulses, (Spokes{{"RG", true}, {"GB", false}, {"BR", true}}));
  EXPECT_TRUE(TakeChanged());
  Grid().Toggle(0, 1);
  EXPECT_EQ(Stored().SpokePulses, (Spokes{{"RG", false}, {"GB", false}, {"BR", true}}));
  EXPECT_TRUE(TakeChanged());
  Grid().ClickCell(1, 0);
  EXPECT_FALSE(TakeChanged());
  page.Refresh();
  EXPECT_EQ(Rows(), "RG- GB- BR+ ");
  // A spoke that the waveform does not have is nobody's.
  Stored().SpokePulses.erase("GB");
  Grid().Toggle(1, 1);
  EXPECT_FALSE(TakeChanged());
  EXPECT_EQ(Stored().SpokePulses.size(), 2);
}

TEST_F(CompensationPageTest, WithoutAPersonARefusalIsNotShown) {
  const QScopedValueRollback<bool> alone(OstCommandLineInfo::c_instance.nonInteractive, true);
  At(kRatio).SetText("100");
  At(kLength).SetText("0");
  EXPECT_EQ(Text(kRatio) + " " + Text(kLength), "120 250.123");
  EXPECT_THAT(person.TakeMessages(), IsEmpty());
}

TEST_F(CompensationPageTest, IsWorkedByKeyboard) {
  page.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
  At("Enable Compensation").Widget().setFocus();
  press(Qt::Key_Tab);
  QTest::keyClicks(QApplication::focusWidget(), "130");
  press(Qt::Key_Tab);
  QTest::keyClicks(QApplication::focusWidget(), "275");
  press(Qt::Key_Return);
  EXPECT_EQ(Stored().PulsePlateauRatio, 130);
  EXPECT_EQ(Stored().PulseLength, 275);
  press(Qt::Key_Tab);
  press(Qt::Key_Right);
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  EXPECT_EQ(Rows(), "RG+ GB+ BR- ");
}

TEST_F(CompensationPageTest, MayGoWhileAFieldIsEdited) {
  auto other = std::make_unique<CAntiFlatterCompensationPage>("waveforms");
  other->SetInputData(&data);
  other->Refresh();
  page.hide();
  other->show();
  automation::Form(*other).GetControl(kRatio).Type("5");
  EXPECT_EQ(Stored().PulsePlateauRatio, 120);
  other.reset();
  EXPECT_EQ(Stored().PulsePlateauRatio, 120);
}

}  // namespace
