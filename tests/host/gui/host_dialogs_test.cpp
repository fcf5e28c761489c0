// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "host/gui/file_dialog_ex.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "host/project/ost_command_line_info.h"
#include "support/temp_folder.h"

namespace {

/// Runs `work` on the modal dialog of that type as soon as it stands on the screen; whatever then
/// still stands is closed.
template <class Dialog, class Work>
void OnScreen(Work work) {
  QTimer::singleShot(0, qApp, [work] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog) work(*dialog);
    if (QWidget* left = QApplication::activeModalWidget()) left->close();
  });
}

class HostDialogs : public testing::Test {
 protected:
  ~HostDialogs() override {
    OstCommandLineInfo::c_instance.nonInteractive = false;
    SetMessageBoxResponder({});
    SetModalRunner({});
    SetFileChooser({});
  }
};

TEST_F(HostDialogs, MessageBoxStandsOnTheMainWindowWithItsTextAsItIs) {
  QMainWindow window;
  window.show();
  bool seen = false;
  OnScreen<QMessageBox>([&](QMessageBox& box) {
    seen = true;
    EXPECT_EQ(box.text(), "a <b> & c");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "sysdef");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.parentWidget(), &window);
  });
  EXPECT_EQ(ShowMessageBox("a <b> & c", "", msgbox::kOk | msgbox::kIconWarning), 1);
  EXPECT_TRUE(seen);
}

struct Question {
  unsigned style;
  QMessageBox::StandardButton standard;  ///< the default button
  QMessageBox::StandardButton clicked;   ///< NoButton: the box is closed
  int answer;
};

TEST_F(HostDialogs, MessageBoxReturnsWhatWasClicked) {
  using namespace msgbox;
  const Question questions[] = {
      {kYesNo, QMessageBox::Yes, QMessageBox::Yes, kAnswerYes},
      {kYesNo | kIconQuestion, QMessageBox::Yes, QMessageBox::No, kAnswerNo},
      {kYesNo | kDefaultButton2, QMessageBox::No, QMessageBox::NoButton, kAnswerNo},
      {kOkCancel, QMessageBox::Ok, QMessageBox::Ok, kAnswerOk},
      {kOkCancel | kDefaultButton2, QMessageBox::Cancel, QMessageBox::NoButton, kAnswerCancel},
      {kOk | kIconError, QMessageBox::Ok, QMessageBox::NoButton, kAnswerOk},
  };
  for (const Question& question : questions) {
    OnScreen<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(box.standardButton(box.defaultButton()), question.standard);
      EXPECT_EQ(box.windowTitle(), "Title");
      if (question.clicked != QMessageBox::NoButton) box.button(question.clicked)->click();
    });
    EXPECT_EQ(ShowMessageBox("?", "Title", question.style), question.answer) << question.style;
  }
}

TEST_F(HostDialogs, NothingIsShownWithoutAPerson) {
  OstCommandLineInfo::c_instance.nonInteractive = true;
  bool asked = false;
  SetMessageBoxResponder([&](const std::string&, const std::string&, unsigned) {
    asked = true;
    return msgbox::kAnswerYes;
  });
  OnScreen<QWidget>([&](QWidget&) { asked = true; });
  EXPECT_EQ(ShowMessageBox("?", "", msgbox::kYesNo), 5);
  EXPECT_STREQ(msgbox::AnswerName(5), "Ignore");
  QDialog dialog;
  EXPECT_EQ(RunModal(dialog), QDialog::Rejected);
  EXPECT_EQ(CFileDialogEx().Choose(), std::nullopt);
  QCoreApplication::processEvents();
  EXPECT_FALSE(asked);
}

TEST_F(HostDialogs, FileDialogOffersTheFiltersAndReturnsTheFile) {
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const test::TempFolder folder;
  const auto lamp = folder.Write("größe.lmp", "x");
  CFileDialogEx dialog;
  dialog.title = "Load lamp";
  dialog.filter = "Lamp files (*.lmp)|*.lmp|Pictures|*.png;*.jpg||";
  dialog.defaultExtension = "lmp";
  dialog.startFolder = folder.Path();
  const auto choose = [&](QFileDialog& shown) {
    EXPECT_EQ(shown.windowTitle(), "Load lamp");
    EXPECT_EQ(shown.nameFilters(), (QStringList{"Lamp files (*.lmp)", "Pictures (*.png *.jpg)"}));
    EXPECT_EQ(shown.directory().absolutePath().toStdString(), folder.Path().string());
    shown.selectFile(QString::fromStdString(lamp.string()));
    shown.findChild<QPushButton*>()->click();
  };
  OnScreen<QFileDialog>(choose);
  EXPECT_EQ(dialog.Choose(), lamp);
  dialog.startFolder.clear();
  OnScreen<QFileDialog>(choose);
  EXPECT_EQ(dialog.Choose(), lamp) << "starts where the last one ended";
  OnScreen<QFileDialog>([](QFileDialog& shown) { shown.reject(); });
  EXPECT_EQ(dialog.Choose(), std::nullopt);
}

}  // namespace
