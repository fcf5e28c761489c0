// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// What holds for every page, whichever there are: new ones are found by themselves.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <set>

#include "app/session.h"
#include "automation/accessible_name.h"
#include "automation/shown_text.h"
#include "host/gui/message_box.h"
#include "host/gui/page_host.h"
#include "host/gui/tool_property_page.h"
#include "support/temp_folder.h"

namespace {

/// The sample project with all its pages open.
class EveryPage : public testing::TestWithParam<const char*> {
 protected:
  EveryPage() {
    namespace fs = std::filesystem;
    const std::string sample = GetParam();
    fs::copy(fs::path(SYSDEF_SOURCE_DIR) / "samples" / sample, folder_.Path(),
             fs::copy_options::recursive);
    file_ = folder_.Path() / (sample + ".ostproj");
    Open(Framework::PageHost::Names());
  }

  void Open(const std::vector<std::string>& pages) {
    windows_.clear();
    session_.reset();
    session_ = std::make_unique<app::Session>(file_);
    for (const std::string& name : pages) {
      windows_.push_back(session_->Pages().Open(name).Window());
      windows_.back()->show();
    }
  }

  test::TempFolder folder_;
  std::filesystem::path file_;
  std::unique_ptr<app::Session> session_;
  std::vector<QWidget*> windows_;
};

INSTANTIATE_TEST_SUITE_P(Samples, EveryPage,
                         testing::Values("three-color-lamp", "six-color-led-laser"));

/// One step of the mouse wheel over the control.
void TurnWheel(QWidget& control, int step) {
  const QPointF place = QRectF(control.rect()).center();
  QWheelEvent event(place, control.mapToGlobal(place), {}, {0, step}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&control, &event);
}

bool HasSteps(const QWidget& control) {
  const bool slides =
      qobject_cast<const QAbstractSlider*>(&control) && !qobject_cast<const QScrollBar*>(&control);
  return slides || qobject_cast<const QComboBox*>(&control) ||
         qobject_cast<const QAbstractSpinBox*>(&control);
}

// Who scrolls over a page changes no value in passing.
TEST_P(EveryPage, TheMouseWheelTurnsNothingThatHasNoFocus) {
  for (const QWidget* window : windows_) {
    for (QWidget* control : window->findChildren<QWidget*>()) {
      if (!HasSteps(*control)) continue;
      control->setEnabled(true);
      control->clearFocus();
      const auto value = [control] {
        return automation::ShownText(*control) + control->property("value").toString();
      };
      const QString before = value();
      for (const int step : {120, -120}) {
        TurnWheel(*control, step);
        EXPECT_EQ(value(), before) << control->objectName().toStdString();
      }
    }
  }
}

TEST_P(EveryPage, ControlsHaveNamesOfTheirOwnAndATabPlace) {
  for (QWidget* window : windows_) {
    std::set<QString> names;
    for (const auto& [widget, name, decoration] :
         automation::NamedWidgets(*window, automation::Tabs::kInside)) {
      if (decoration) continue;
      const std::string which = window->windowTitle().toStdString() + ": " + name.toStdString();
      EXPECT_TRUE(names.insert(name).second) << which;
      const bool works = qobject_cast<QAbstractButton*>(widget) ||
                         qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget) ||
                         qobject_cast<QAbstractItemView*>(widget);
      EXPECT_TRUE(!works || widget->focusPolicy() & Qt::TabFocus) << which;
    }
    for (const auto* button : window->findChildren<QAbstractButton*>()) {
      const bool isPart =
          qobject_cast<QAbstractItemView*>(button->parentWidget()) || !button->isVisibleTo(window);
      EXPECT_TRUE(isPart || !button->accessibleName().isEmpty() || !button->text().isEmpty())
          << window->windowTitle().toStdString();
    }
  }
}

// A project that is closed, or a program that ends, takes nothing that is being typed and asks
// nothing.
TEST_P(EveryPage, ClosingTakesNothingThatIsBeingTyped) {
  std::vector<std::string> boxes;
  SetMessageBoxResponder([&](const std::string& text, const std::string&, unsigned style) {
    boxes.push_back(text);
    return msgbox::DefaultAnswer(style);
  });
  std::size_t typed = 0;
  for (const std::string& page : Framework::PageHost::Names()) {
    for (int field = 0;; ++field) {
      Open({page});
      auto* const window = windows_.front();
      QApplication::setActiveWindow(window);
      const auto fields = window->findChildren<QLineEdit*>();
      if (field >= fields.size()) break;
      if (!fields[field]->isVisible() || !fields[field]->isEnabled()) continue;
      fields[field]->setFocus();
      ASSERT_TRUE(fields[field]->hasFocus()) << fields[field]->objectName().toStdString();
      QTest::keyClicks(fields[field], QStringLiteral("-7x"));
      ++typed;
      session_.reset();
      EXPECT_EQ(boxes, std::vector<std::string>());
    }
  }
  EXPECT_GT(typed, 20u);
  SetMessageBoxResponder({});
}

}  // namespace
