// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/message_box.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <utility>

#include "host/gui/main_window.h"
#include "host/project/ost_command_line_info.h"

namespace {

constexpr unsigned kButtonBits = 0xf;
constexpr unsigned kIconBits = 0xf0;

MessageBoxResponder& Responder() {
  static MessageBoxResponder responder;
  return responder;
}

QMessageBox::Icon IconOf(unsigned style) {
  switch (style & kIconBits) {
    case msgbox::kIconError:
      return QMessageBox::Critical;
    case msgbox::kIconQuestion:
      return QMessageBox::Question;
    case msgbox::kIconWarning:
      return QMessageBox::Warning;
    case msgbox::kIconInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

QMessageBox::StandardButtons ButtonsOf(unsigned style) {
  switch (style & kButtonBits) {
    case msgbox::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case msgbox::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case msgbox::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::StandardButton ButtonOf(int answer) {
  switch (answer) {
    case msgbox::kAnswerCancel:
      return QMessageBox::Cancel;
    case msgbox::kAnswerYes:
      return QMessageBox::Yes;
    case msgbox::kAnswerNo:
      return QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

int AnswerOf(int button) {
  for (int answer : {msgbox::kAnswerCancel, msgbox::kAnswerYes, msgbox::kAnswerNo})
    if (ButtonOf(answer) == button) return answer;
  return msgbox::kAnswerOk;
}

int ShowOnScreen(const std::string& text, const std::string& caption, unsigned style) {
  QMessageBox box(IconOf(style), QString::fromStdString(caption), QString::fromStdString(text),
                  ButtonsOf(style), HostMainWindow());
  // A message may quote what a file or a field holds, which is never markup.
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(ButtonOf(msgbox::DefaultAnswer(style)));
  return AnswerOf(box.exec());
}

}  // namespace

const char* msgbox::AnswerName(int answer) {
  switch (answer) {
    case kAnswerCancel:
      return "Cancel";
    case kAnswerIgnore:
      return "Ignore";
    case kAnswerYes:
      return "Yes";
    case kAnswerNo:
      return "No";
    default:
      return "OK";
  }
}

int msgbox::DefaultAnswer(unsigned style) {
  const bool second = (style & kDefaultButton2) != 0;
  switch (style & kButtonBits) {
    case kOkCancel:
      return second ? kAnswerCancel : kAnswerOk;
    case kYesNo:
      return second ? kAnswerNo : kAnswerYes;
    default:
      return kAnswerOk;
  }
}

int ShowMessageBox(const std::string& text, const std::string& caption, unsigned style) {
  if (OstCommandLineInfo::c_instance.nonInteractive) return msgbox::kAnswerIgnore;
  const std::string title =
      caption.empty() ? QCoreApplication::applicationName().toStdString() : caption;
  // A copy: an answer may come from a script that ends the responder.
  if (const MessageBoxResponder responder = Responder()) return responder(text, title, style);
  return ShowOnScreen(text, title, style);
}

void SetMessageBoxResponder(MessageBoxResponder responder) { Responder() = std::move(responder); }
