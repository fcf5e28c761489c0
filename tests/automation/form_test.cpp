// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <functional>

#include "automation/automation_error.h"
#include "automation/interaction.h"
#include "automation/support/test_form.h"
#include "support/fault_of.h"

namespace {

using automation::AutomationError;
using automation::Control;
using automation::Form;
using testing::HasSubstr;

std::string ErrorOf(auto&& call) { return test::FaultOf<AutomationError>(call); }

class FormTest : public testing::Test {
 protected:
  FormTest() { window_.show(); }
  Control At(const char* name) const { return form_.GetControl(name); }
  std::string Happened() { return window_.TakeEvents().join(' ').toStdString(); }

  test::TestForm window_;
  Form form_{window_};
};

TEST_F(FormTest, FindsControlsByTheLabelThatIsSeen) {
  EXPECT_EQ(At("Width (mm)").Text(), "3.00");
  EXPECT_EQ(At("Frame Rate").Text(), "60") << "a control goes before a label of its name";
  EXPECT_EQ(At("Frame Rate/Unit").Text(), "Hz [1-120]");
  EXPECT_EQ(At("Note").Text(), "Mind the gap");
  EXPECT_EQ(At("Enable all & more").Text(), "Enable all & more");
  EXPECT_EQ(At("Mode").Text(), "Mode");
  EXPECT_EQ(At("Move up").Text(), "");
  EXPECT_EQ(At("Width (mm)").ToolTip(), "in mm");
  EXPECT_EQ(form_.Title(), "Test form");
}

TEST_F(FormTest, TellsWhatItCannotFind) {
  EXPECT_THAT(ErrorOf([&] { At("Hight"); }),
              testing::AllOf(HasSubstr("no control \"Hight\" in \"Test form\""),
                             HasSubstr("\"Width (mm)\""), HasSubstr("\"Parts\"")));
  EXPECT_EQ(ErrorOf([&] { At("Twice"); }), "more than one \"Twice\"");
  EXPECT_THAT(ErrorOf([&] { (void)form_.GetTable("Color"); }), HasSubstr("no table \"Color\""));
  auto gone = std::make_unique<QLineEdit>();
  const Control control(*gone, "Gone");
  gone.reset();
  EXPECT_EQ(ErrorOf([&] { (void)control.Text(); }), "\"Gone\" is no longer there");
}

TEST_F(FormTest, TypesKeyByKeyAndLeavesTheField) {
  Control width = At("Width (mm)");
  width.SetText("12.5");
  EXPECT_EQ(Happened(), "1 12 12. 12.5 left 12.5");
  width.SetText("");
  EXPECT_EQ(Happened(), " left ");
  width.Type("Aä\b7");
  EXPECT_EQ(Happened(), "A Aä A A7") << "not left yet";
  form_.Press("Start...");
  EXPECT_EQ(Happened(), "left A7 started") << "a click elsewhere leaves the field";
  width.Type("8\n");
  EXPECT_EQ(Happened(), "A78 left A78");
  At("Total").SetText("99");
  EXPECT_EQ(At("Total").Text(), "7") << "read-only";
}

TEST_F(FormTest, LeavesFieldsOfAWindowThatIsNotActive) {
  window_.hide();
  window_.setWindowFlag(Qt::WindowDoesNotAcceptFocus);
  window_.show();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  Control width = At("Width (mm)");
  width.Type("5");
  EXPECT_FALSE(window_.isActiveWindow());
  width.Type("6");
  EXPECT_EQ(Happened(), "3.005 3.0056");
  At("Frame Rate").SetText("50");
  EXPECT_EQ(Happened(), "left 3.0056");
  width.SetText("7");
  EXPECT_EQ(Happened(), "7 left 7");
}

TEST_F(FormTest, ChoosesFromLists) {
  Control color = At("Color");
  EXPECT_EQ(color.Items(), (QStringList{"Red", "Green", "Blue"}));
  EXPECT_EQ(color.Index(), 0);
  color.Choose("Blue");
  EXPECT_EQ(color.Index(), 2);
  color.Choose("Blue");
  EXPECT_EQ(Happened(), "Blue Blue") << "choosing the current item again is told as well";
  color.SetText("Red");
  EXPECT_EQ(color.Text(), "Red");
  EXPECT_EQ(ErrorOf([&] { color.Choose("Pink"); }),
            "\"Color\" has no item \"Pink\"; it has: Red, Green, Blue");
  EXPECT_EQ(ErrorOf([&] { color.Choose("Green"); }), "the item \"Green\" of \"Color\" is disabled");
  Control spin = At("Spin");
  spin.SetText("3.5x");
  EXPECT_EQ(spin.Text(), "3.5x");
  spin.Choose("2.0x");
  EXPECT_EQ(spin.Text(), "2.0x");
  EXPECT_THAT(ErrorOf([&] { (void)At("Total").Items(); }), HasSubstr("\"Total\" has no list"));
}

TEST_F(FormTest, ChecksAndClicks) {
  Control all = At("Enable all & more");
  all.SetChecked(true);
  all.SetChecked(true);
  EXPECT_TRUE(all.Checked());
  all.Click();
  EXPECT_EQ(Happened(), "all none");
  At("Fast").SetChecked(true);
  At("Slow").Click();
  EXPECT_FALSE(At("Fast").Checked());
  At("Mode").SetChecked(false);
  EXPECT_FALSE(At("Slow").Enabled());
  form_.Press("Move up");
  EXPECT_EQ(Happened(), "up");
  EXPECT_EQ(ErrorOf([&] { (void)At("Start...").Checked(); }), "\"Start...\" cannot be checked");
}

TEST_F(FormTest, RefusesWhatAPersonCannotReach) {
  EXPECT_EQ(ErrorOf([&] { At("Locked").Click(); }), "\"Locked\" is disabled");
  Control secret = At("Secret");
  const std::function<void()> acts[] = {[&] { secret.SetText("x"); }, [&] { secret.Type("x"); },
                                        [&] { secret.Click(); }};
  for (const auto& act : acts) EXPECT_EQ(ErrorOf(act), "\"Secret\" is hidden");
  EXPECT_EQ(secret.Text(), "hidden text");
  EXPECT_FALSE(secret.Visible());
  At("Mode").SetChecked(false);
  EXPECT_EQ(ErrorOf([&] { At("Fast").SetChecked(true); }), "\"Fast\" is disabled");
  window_.hide();
  EXPECT_EQ(ErrorOf([&] { form_.Press("Start..."); }), "\"Start...\" is hidden");
}

TEST_F(FormTest, OpensTabs) {
  ASSERT_EQ(form_.Tabs().size(), 3u);
  EXPECT_EQ(form_.Tabs()[0].text, "General");
  EXPECT_TRUE(form_.Tabs()[0].current);
  EXPECT_FALSE(form_.Tabs()[1].enabled);
  EXPECT_THAT(ErrorOf([&] { form_.GetControl("Only Third").Click(); }), HasSubstr("is hidden"));
  const Form third = form_.Tab("Third");
  EXPECT_TRUE(form_.Tabs()[2].current);
  EXPECT_EQ(third.Title(), "Third");
  EXPECT_EQ(third.GetControl("Width (mm)").Text(), "of Third");
  EXPECT_EQ(At("Width (mm)").Text(), "3.00") << "what stands outside the tabs goes first";
  third.GetControl("Only Third").SetText("2");
  EXPECT_EQ(At("Only Third").Text(), "2");
  EXPECT_EQ(ErrorOf([&] { (void)form_.Tab("Extra"); }), "\"tab Extra\" is disabled");
  EXPECT_EQ(ErrorOf([&] { (void)form_.Tab("Fourth"); }), "no tab \"Fourth\" in \"Test form\"");
  EXPECT_TRUE(form_.Tabs()[2].current);
}

TEST_F(FormTest, SaysWhereAPictureCannotBeWritten) {
  EXPECT_THAT(ErrorOf([&] { form_.Screenshot("/no/such/folder/form.png"); }),
              HasSubstr("/no/such/folder/form.png"));
}

TEST_F(FormTest, WorksModalDialogsInsideEachOther) {
  automation::Interaction person;
  form_.Press("Ask");
  EXPECT_EQ(Happened(), "Question cancelled ");
  person.OnDialog([&](Form& question) {
    EXPECT_EQ(question.Title(), "Question");
    EXPECT_EQ(ErrorOf([&] { form_.Press("Start..."); }),
              "\"Start...\" is behind the dialog \"Question\"");
    question.GetControl("Answer").SetText("42");
    question.Press("More");
    EXPECT_TRUE(question.Open());
    question.Press("OK");
    EXPECT_FALSE(question.Open());
  });
  person.OnDialog([&](Form& inner) { inner.GetControl("Detail").Type("deep\n"); });
  form_.Press("Ask");
  EXPECT_EQ(Happened(), "Inner accepted deep Question accepted 42");
  person.OnDialog([](Form&) {});
  form_.Press("Ask");
  EXPECT_EQ(Happened(), "Question cancelled ") << "still open when its function ended";
  person.RethrowFailure();
  person.OnDialog([](Form& question) { question.Press("Nothing like it"); });
  form_.Press("Ask");
  EXPECT_EQ(Happened(), "Question cancelled ");
  EXPECT_THAT(ErrorOf([&] { person.RethrowFailure(); }), HasSubstr("Nothing like it"));
  person.RethrowFailure();
}

}  // namespace
