// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/add_del_pulse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QScopedValueRollback>
#include <QTest>

#include "automation/form.h"
#include "automation/interaction.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/project/ost_command_line_info.h"
#include "pages/lamp_waveform/rules/waveform_inputs.h"
#include "widgets/line_chart.h"

namespace {

using automation::Form;
using GUI::LineChart;
using lamp_waveform::PulseDialogStart;
using lamp_waveform::PulseValues;
using testing::IsEmpty;
using testing::SizeIs;
using VeskSystemDefinition::CAddDelPulse;

constexpr const char* kDurations[] = {"Leading Edge (usecs)", "Trailing Edge (usecs)",
                                      "Width (usecs)"};

class AddDelPulseTest : public testing::Test {
 protected:
  struct Outcome {
    int code;
    PulseValues values;
  };
  /// Opens the dialog with limits of 20 to 60 % and works it; what is left open is cancelled.
  Outcome Run(const PulseDialogStart& start, bool editing,
              const automation::Interaction::DialogFunction& work) {
    CAddDelPulse dialog(start, waveform_test::DarkGroup().VIDarkPulseInfo, editing);
    person.OnDialog(work);
    const int code = RunModal(dialog);
    person.RethrowFailure();
    return {code, dialog.Values()};
  }
  static std::string Text(const Form& form, const char* name) {
    return form.GetControl(name).Text().toStdString();
  }
  /// The texts of the four fields.
  static std::string Fields(const Form& form) {
    std::string texts = Text(form, "Amplitude %");
    for (const char* name : kDurations) texts += " " + Text(form, name);
    return texts;
  }
  static bool DurationsEnabled(const Form& form) {
    const bool enabled = form.GetControl(kDurations[0]).Enabled();
    for (const char* name : kDurations) EXPECT_EQ(form.GetControl(name).Enabled(), enabled);
    return enabled;
  }
  static LineChart& Preview(const Form& form) {
    return dynamic_cast<LineChart&>(form.GetControl("Preview").Widget());
  }
  /// The preview's ranges: "xMin..xMax yMin..yMax".
  static std::string Ranges(const Form& form) {
    const auto text = [&](LineChart::Axis axis) {
      const LineChart::Range range = Preview(form).VisibleRange(axis);
      return QStringLiteral("%1..%2").arg(range.lower).arg(range.upper).toStdString();
    };
    return text(LineChart::Axis::kX) + " " + text(LineChart::Axis::kY);
  }
  std::string TakeMessage() {
    const auto messages = person.TakeMessages();
    return messages.empty() ? "" : messages.front().caption + ": " + messages.front().text;
  }

  automation::Interaction person;
};

TEST_F(AddDelPulseTest, OpensPlainToAdd) {
  const Outcome outcome = Run({}, false, [&](Form& form) {
    EXPECT_EQ(form.Title(), "Add Pulse");
    EXPECT_EQ(Fields(form), "100 0 0 0");
    for (const char* name : {"Dark Pulse", "Amplitude Range", "Delete Pulse"}) {
      EXPECT_FALSE(form.GetControl(name).Visible()) << name;
    }
    EXPECT_FALSE(form.GetControl("Delete Pulse").Enabled());
    EXPECT_TRUE(DurationsEnabled(form));
    EXPECT_EQ(Text(form, "Note"),
              "Note:\n      Pulses (0--0) will be aligned with the end of sequence segment (See "
              "TimingChart Page for detailed\n      view of waveform).");
    // Without a duration there is nothing to draw.
    EXPECT_EQ(Ranges(form), "0..500 0..2");
    EXPECT_EQ(Preview(form).SeriesCount(), 0);
  });
  EXPECT_EQ(outcome.code, QDialog::Rejected);
}

TEST_F(AddDelPulseTest, TakesWhatWasTypedAndDrawsIt) {
  const Outcome outcome = Run({}, false, [&](Form& form) {
    form.GetControl("Amplitude %").SetText("155.123456789");
    form.GetControl("Leading Edge (usecs)").SetText("100");
    form.GetControl("Width (usecs)").SetText("230.25");
    EXPECT_EQ(Ranges(form), "0..500 0..2") << "only the button redraws";
    form.Press("Update Waveform");
    EXPECT_EQ(Fields(form), "155.1234568 100 0 230.25");
    EXPECT_EQ(Ranges(form), "0..350 0..2");
    EXPECT_TRUE(Text(form, "Note").starts_with("Note:\n      Pulses (0--330.25) will"));
    const QList<QPointF> points{
        {0, 1}, {100, 1.55123456789}, {330.25, 1.55123456789}, {330.25, 1}, {350, 1}};
    EXPECT_EQ(Preview(form).Points(0), points);
    // A chart that has nothing to draw stays.
    for (const char* name : kDurations) form.GetControl(name).SetText("0");
    form.Press("Update Waveform");
    EXPECT_EQ(Ranges(form), "0..350 0..2");
    form.GetControl("Trailing Edge (usecs)").SetText("50");
    form.Press("OK");
    EXPECT_FALSE(form.Open());
  });
  EXPECT_EQ(outcome.code, QDialog::Accepted);
  EXPECT_EQ(outcome.values, (PulseValues{155.123456789, 0, 50, 0}));
  EXPECT_THAT(person.TakeMessages(), IsEmpty());
}

TEST_F(AddDelPulseTest, RefusesWhatIsNoNumberOrOutOfRange) {
  const struct {
    const char* field;
    const char* text;
    const char* prompt;
  } cases[] = {{"Amplitude %", "1000.1", "Please enter a number between 0 and 1000."},
               {"Trailing Edge (usecs)", "-0.1", "Please enter a number between 0 and 10000."},
               {"Width (usecs)", "5x", "Please enter a number."}};
  for (const auto& entry : cases) {
    const Outcome outcome = Run({{50, 1, 2, 3}}, false, [&](Form& form) {
      form.GetControl("Width (usecs)").SetText("9");
      form.GetControl(entry.field).SetText(entry.text);
      for (const char* button : {"Update Waveform", "OK"}) {
        form.Press(button);
        EXPECT_TRUE(form.Open());
        const auto messages = person.TakeMessages();
        ASSERT_THAT(messages, SizeIs(1));
        EXPECT_EQ(messages[0].text, entry.prompt);
        EXPECT_EQ(messages[0].style, msgbox::kIconWarning);
        EXPECT_EQ(Text(form, entry.field), entry.text);
      }
    });
    EXPECT_EQ(outcome.values, (PulseValues{50, 1, 2, 3})) << entry.field;
  }
  // Also a value that it was opened with.
  Run({{2000, 1, 2, 3}}, true, [&](Form& form) {
    form.Press("OK");
    EXPECT_TRUE(form.Open());
    EXPECT_EQ(TakeMessage(), "sysdef: Please enter a number between 0 and 1000.");
  });
}

TEST_F(AddDelPulseTest, AValueThatNobodyEditedStaysWhole) {
  const PulseValues values{50.0000000000001, 1e4 / 3, 1e3 / 7, 1e2 / 9};
  const Outcome outcome = Run({values}, true, [&](Form& form) {
    EXPECT_EQ(Fields(form), "50 3333.333333 142.8571429 11.11111111");
    form.Press("Update Waveform");
    form.Press("OK");
  });
  EXPECT_EQ(outcome.code, QDialog::Accepted);
  EXPECT_EQ(outcome.values, values);
}

TEST_F(AddDelPulseTest, ADarkPulseIsOneWithinTheLimits) {
  const struct {
    double amplitude;
    bool dark;
    const char* range;
  } cases[] = {
      {19.9, false, "(>60)"}, {20, true, "(20~60)"}, {60, true, "(20~60)"}, {60.5, false, "(>60)"}};
  for (const auto& [amplitude, dark, range] : cases) {
    Run({{amplitude, 1, 2, 3}, true}, true, [&](Form& form) {
      EXPECT_EQ(form.GetControl("Dark Pulse").Checked(), dark) << amplitude;
      EXPECT_EQ(DurationsEnabled(form), !dark) << amplitude;
      EXPECT_TRUE(form.GetControl("Amplitude Range").Visible());
      EXPECT_EQ(Text(form, "Amplitude Range"), range);
      EXPECT_EQ(Text(form, "Width (usecs)"), "3");
    });
  }
}

TEST_F(AddDelPulseTest, TheCheckBoxSetsItsValues) {
  const Outcome outcome = Run({{80, 1, 2, 3}, true}, false, [&](Form& form) {
    auto dark = form.GetControl("Dark Pulse");
    dark.Click();
    EXPECT_EQ(Fields(form), "20 30 40 200");
    EXPECT_FALSE(DurationsEnabled(form));
    EXPECT_EQ(Text(form, "Amplitude Range"), "(20-60)");
    EXPECT_EQ(Ranges(form), "0..300 0..1.5");
    form.GetControl("Amplitude %").SetText("300");
    dark.Click();
    EXPECT_EQ(Fields(form), "61 30 40 200") << "whatever was entered";
    EXPECT_TRUE(DurationsEnabled(form));
    EXPECT_EQ(Text(form, "Amplitude Range"), "(>60)");
    form.GetControl("Amplitude %").SetText("45");
    dark.Click();
    EXPECT_EQ(Text(form, "Amplitude %"), "45") << "the typed amplitude is within the limits";
    form.Press("OK");
  });
  EXPECT_EQ(outcome.code, QDialog::Accepted);
  EXPECT_EQ(outcome.values, (PulseValues{45, 30, 40, 200}));
}

TEST_F(AddDelPulseTest, AnAmplitudeThatDoesNotFitIsReplacedAndSaid) {
  const struct {
    bool dark;
    const char* amplitude;
    const char* message;
    const char* shown;
  } cases[] = {
      {true, "60", "", "60"},
      {false, "60", "", "60"},
      {true, "61", "Amplitude Error: The DP amplitude must be less than 60.", "60"},
      {true, "19.9", "Amplitude Error: The DP amplitude must be greater than 20.", "20"},
      {false, "59", "Amplitude Error: The non-DP amplitude must be greater than 60.", "61"}};
  for (const auto& check : cases) {
    const bool passes = std::string(check.message).empty();
    const Outcome outcome = Run({{30, 1, 2, 3}, true}, true, [&](Form& form) {
      form.GetControl("Dark Pulse").SetChecked(check.dark);
      form.GetControl("Amplitude %").SetText(check.amplitude);
      form.Press("OK");
      EXPECT_EQ(form.Open(), !passes) << check.amplitude;
      EXPECT_EQ(Text(form, "Amplitude %"), check.shown);
      EXPECT_EQ(TakeMessage(), check.message);
      if (!passes) form.Press("OK");
    });
    EXPECT_EQ(outcome.code, QDialog::Accepted);
    EXPECT_EQ(outcome.values.amplitude, std::stod(check.shown));
  }
}

TEST_F(AddDelPulseTest, DeletesWhenThePersonIsSure) {
  const PulseDialogStart start{{50, 1, 2, 3}};
  const Outcome outcome = Run(start, true, [&](Form& form) {
    EXPECT_EQ(form.Title(), "Edit/Delete Pulse");
    person.Answer(msgbox::kAnswerNo);
    form.Press("Delete Pulse");
    EXPECT_TRUE(form.Open());
    const auto messages = person.TakeMessages();
    ASSERT_THAT(messages, SizeIs(1));
    EXPECT_EQ(messages[0].text, "Are you sure you want to delete the current pulse?");
    EXPECT_EQ(messages[0].style, msgbox::kYesNo);
    person.Answer(msgbox::kAnswerYes);
    form.GetControl("Width (usecs)").SetText("7");
    form.Press("Delete Pulse");
    EXPECT_FALSE(form.Open());
  });
  EXPECT_EQ(outcome.code, 1000);
  EXPECT_EQ(outcome.values, start.values);
}

TEST_F(AddDelPulseTest, WithoutAPersonNothingIsAskedOrDeleted) {
  const QScopedValueRollback<bool> alone(OstCommandLineInfo::c_instance.nonInteractive, true);
  const Outcome outcome = Run({{30, 1, 2, 3}, true}, true, [&](Form& form) {
    form.Press("Delete Pulse");
    EXPECT_TRUE(form.Open());
    form.GetControl("Amplitude %").SetText("70");
    form.Press("OK");
    EXPECT_TRUE(form.Open()) << "refused and replaced all the same";
    EXPECT_EQ(Text(form, "Amplitude %"), "60");
  });
  EXPECT_EQ(outcome.code, QDialog::Rejected);
  EXPECT_THAT(person.TakeMessages(), IsEmpty());
}

TEST_F(AddDelPulseTest, IsDraggedByAnyPointThatIsNoControl) {
  Run({{30, 1, 2, 3}, true}, true, [&](Form& form) {
    QWidget& dialog = form.Widget();
    const auto drag = [&](QWidget& from, Qt::MouseButton button) {
      const QPoint before = dialog.pos(), place = from.rect().center();
      const QPointF global = from.mapToGlobal(QPointF(place));
      QTest::mousePress(&from, button, {}, place);
      QMouseEvent move(QEvent::MouseMove, place, global + QPointF(12, 8), Qt::NoButton, button, {});
      QApplication::sendEvent(&from, &move);
      QTest::mouseRelease(&from, button, {}, place);
      return dialog.pos() - before;
    };
    QWidget& note = form.GetControl("Note").Widget();
    EXPECT_EQ(drag(note, Qt::LeftButton), QPoint(12, 8));
    EXPECT_EQ(drag(dialog, Qt::LeftButton), QPoint(12, 8));
    EXPECT_EQ(drag(note, Qt::RightButton), QPoint());
    EXPECT_EQ(drag(form.GetControl("Amplitude %").Widget(), Qt::LeftButton), QPoint());
  });
}

TEST_F(AddDelPulseTest, IsWorkedByKeyboard) {
  const Outcome outcome = Run({}, false, [&](Form& form) {
    QWidget& dialog = form.Widget();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto type = [&](const char* keys) {
      QTest::keyClicks(QApplication::focusWidget(), keys);
    };
    const auto tab = [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); };
    ASSERT_EQ(QApplication::focusWidget(), &form.GetControl("Amplitude %").Widget());
    type("50");
    tab();
    type("10");
    tab();
    type("20");
    tab();
    type("30");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form.Open()) << "Return is OK";
  });
  EXPECT_EQ(outcome.code, QDialog::Accepted);
  EXPECT_EQ(outcome.values, (PulseValues{50, 10, 20, 30}));
}

}  // namespace
