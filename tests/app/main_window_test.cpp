// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/main_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QListWidget>
#include <QLockFile>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "automation/form.h"
#include "host/gui/message_box.h"
#include "host/project/ost_exception.h"
#include "support/open_project.h"

namespace {

using testing::HasSubstr;

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() {
    folder_.Write("test.ostproj", "<OstProject/>");
    folder_.Write("runtimedb.xml", kDatabase);
    SetMessageBoxResponder([this](const std::string& text, const std::string& caption, unsigned) {
      boxes_.push_back(caption + ": " + text);
      return answer_;
    });
    window_ = std::make_unique<app::MainWindow>();
    window_->Open((folder_.Path() / "test.ostproj").string());
    window_->show();
    Select("Pixmeld(TM) Control");
  }
  ~MainWindowTest() override {
    window_.reset();
    SetMessageBoxResponder({});
  }

  void Select(const char* title) {
    auto* pages = window_->findChild<QListWidget*>();
    pages->setCurrentItem(pages->findItems(QLatin1String(title), Qt::MatchExactly).at(0));
  }
  automation::Control Start() {
    return automation::Form(*window_).GetControl("Start of 1st Subframe");
  }
  void Type(const QString& text) { Start().SetText(text); }
  void Press(const QString& text) { automation::Form(*window_).Press(text); }
  bool Close() {
    QCloseEvent event;
    QApplication::sendEvent(window_.get(), &event);
    return event.isAccepted();
  }

  static constexpr const char* kDatabase =
      "<RunTimeDB><Pixmeld><StartOfFirstSubframe degrees=\"4\"/><SubframeSignalLatency "
      "microseconds=\"1\"/><ActuatorSwitchTime microseconds=\"2\"/></Pixmeld></RunTimeDB>";
  test::TempFolder folder_;
  std::vector<std::string> boxes_;
  int answer_ = msgbox::kAnswerYes;
  std::unique_ptr<app::MainWindow> window_;
};

TEST_F(MainWindowTest, TheTitleMarksWhatIsNotSaved) {
  EXPECT_FALSE(window_->isWindowModified());
  Type("12.5");
  EXPECT_TRUE(window_->isWindowModified());
  Press("Revert");
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_EQ(Start().Text(), "4.00");
  Type("12.5");
  Press("Apply");
  EXPECT_TRUE(window_->isWindowModified());
  Press("Save");
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_THAT(folder_.Read("runtimedb.xml"), HasSubstr("degrees=\"12.5\""));
  EXPECT_TRUE(Close());
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(MainWindowTest, ClosingAsksAboutUnsavedChanges) {
  Type("12.5");
  answer_ = msgbox::kAnswerCancel;
  EXPECT_FALSE(Close());
  EXPECT_EQ(boxes_.size(), 1u);
  answer_ = msgbox::kAnswerNo;
  EXPECT_TRUE(Close());
  EXPECT_EQ(folder_.Read("runtimedb.xml"), kDatabase);
  answer_ = msgbox::kAnswerYes;
  EXPECT_TRUE(Close());
  EXPECT_THAT(folder_.Read("runtimedb.xml"), HasSubstr("degrees=\"12.5\""));
}

TEST_F(MainWindowTest, ARefusedEntryKeepsTheWindowOpen) {
  Type("400");
  EXPECT_FALSE(Close());
  EXPECT_THAT(boxes_.back(), HasSubstr("Please enter a number between 0 and 360."));
  EXPECT_EQ(Start().Text(), "400");
}

TEST_F(MainWindowTest, AFailedSaveIsToldAndKeepsTheChanges) {
  Type("12.5");
  std::filesystem::rename(folder_.Path() / "runtimedb.xml", folder_.Path() / "kept.xml");
  std::filesystem::create_directory(folder_.Path() / "runtimedb.xml");
  Press("Save");
  ASSERT_FALSE(boxes_.empty());
  EXPECT_THAT(boxes_.back(), HasSubstr("runtimedb.xml"));
  EXPECT_TRUE(window_->isWindowModified());
  EXPECT_EQ(folder_.Read("kept.xml"), kDatabase);
  std::filesystem::remove(folder_.Path() / "runtimedb.xml");
  std::filesystem::rename(folder_.Path() / "kept.xml", folder_.Path() / "runtimedb.xml");
  Press("Save");
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(MainWindowTest, AnotherProgramsChangeIsLoadedOrKeptOut) {
  const auto theirs = [this](const char* degrees) {
    std::string text = kDatabase;
    text.replace(text.find("\"4\""), 3, degrees);
    folder_.Write("runtimedb.xml", text);
  };
  theirs("\"5\"");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Start().Text() == QLatin1String("5.00"); }));
  EXPECT_EQ(boxes_.size(), 1u);
  answer_ = msgbox::kAnswerNo;
  theirs("\"6\"");
  EXPECT_TRUE(QTest::qWaitFor([this] { return boxes_.size() == 2; }));
  QTest::qWait(400);
  EXPECT_EQ(boxes_.size(), 2u) << "the same change was asked about twice";
  EXPECT_EQ(Start().Text(), "5.00");
  Type("7");
  Press("Save");
  EXPECT_THAT(folder_.Read("runtimedb.xml"), HasSubstr("degrees=\"7\""));
}

TEST_F(MainWindowTest, AProjectInUseIsOpenedToLookAtOnly) {
  window_.reset();
  QLockFile other(QString::fromStdString((folder_.Path() / "runtimedb.xml.lock").string()));
  ASSERT_TRUE(other.tryLock(0));
  window_ = std::make_unique<app::MainWindow>();
  window_->Open((folder_.Path() / "test.ostproj").string());
  ASSERT_EQ(boxes_.size(), 1u);
  EXPECT_THAT(boxes_[0], HasSubstr("process " + std::to_string(QApplication::applicationPid())));
  EXPECT_THAT(window_->windowTitle().toStdString(), HasSubstr("read-only"));
  for (auto* button : window_->findChildren<QPushButton*>()) {
    if (button->text() == QLatin1String("&Save")) {
      EXPECT_FALSE(button->isEnabled());
    }
  }
  answer_ = msgbox::kAnswerNo;
  app::MainWindow second;
  window_.reset();
  EXPECT_THROW(second.Open((folder_.Path() / "test.ostproj").string()), OstException);
}

TEST_F(MainWindowTest, AProjectThatCannotBeOpenedLeavesTheOneShown) {
  Type("12.5");
  folder_.Write("bad.ostproj", "<OstProject>");
  EXPECT_THROW(window_->Open((folder_.Path() / "bad.ostproj").string()), OstException);
  EXPECT_THAT(window_->windowTitle().toStdString(), HasSubstr("test"));
  Select("Pixmeld(TM) Control");
  EXPECT_EQ(Start().Text(), "4.00");
}

}  // namespace
