// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/interaction.h"

#include <QDialog>
#include <QPointer>
#include <utility>

#include "automation/automation_error.h"
#include "automation/form.h"
#include "automation/input.h"
#include "host/gui/file_dialog_ex.h"
#include "host/gui/message_box.h"
#include "host/gui/modal.h"

namespace automation {
namespace {

template <class T>
std::optional<T> Next(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  std::optional<T> next = std::move(queue.front());
  queue.pop_front();
  return next;
}

bool Asks(unsigned style) { return (style & (msgbox::kOkCancel | msgbox::kYesNo)) != 0; }

bool Offers(unsigned style, int answer) {
  if ((style & msgbox::kYesNo) != 0)
    return answer == msgbox::kAnswerYes || answer == msgbox::kAnswerNo;
  return answer == msgbox::kAnswerOk || answer == msgbox::kAnswerCancel;
}

void Show(QDialog& dialog) {
  // A dialog that deletes itself would leave its caller with a dead one.
  dialog.setAttribute(Qt::WA_DeleteOnClose, false);
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.show();
  dialog.activateWindow();
  Settle();
}

void Cancel(QDialog& dialog) {
  dialog.reject();
  // A dialog that refuses to be cancelled would keep the page waiting for ever.
  if (dialog.isVisible()) dialog.done(QDialog::Rejected);
}

}  // namespace

Interaction::Interaction() {
  SetMessageBoxResponder([this](const std::string& text, const std::string& caption,
                                unsigned style) { return AnswerMessage(text, caption, style); });
  SetModalRunner([this](QDialog& dialog) { return RunDialog(dialog); });
  SetFileChooser([this](const CFileDialogEx&) { return NextFile(); });
}

Interaction::~Interaction() {
  SetMessageBoxResponder({});
  SetModalRunner({});
  SetFileChooser({});
}

std::vector<Interaction::Message> Interaction::TakeMessages() {
  return std::exchange(messages_, {});
}

void Interaction::RethrowFailure() {
  if (const std::exception_ptr failure = std::exchange(failure_, nullptr))
    std::rethrow_exception(failure);
}

void Interaction::Fail(std::exception_ptr failure) {
  if (!failure_) failure_ = std::move(failure);
}

int Interaction::AnswerMessage(const std::string& text, const std::string& caption,
                               unsigned style) {
  const int answer = Asks(style) ? NextAnswer(text, style) : msgbox::DefaultAnswer(style);
  messages_.push_back({text, caption, style, answer});
  return answer;
}

int Interaction::NextAnswer(const std::string& text, unsigned style) {
  const std::optional<int> answer = Next(answers_);
  if (!answer) return msgbox::DefaultAnswer(style);
  if (Offers(style, *answer)) return *answer;
  Fail(std::make_exception_ptr(AutomationError(
      QStringLiteral("\"%1\" is no answer to \"%2\"")
          .arg(QLatin1String(msgbox::AnswerName(*answer)), QString::fromStdString(text)))));
  return msgbox::DefaultAnswer(style);
}

int Interaction::RunDialog(QDialog& dialog) {
  const QPointer<QDialog> alive = &dialog;
  Show(dialog);
  try {
    Form form(dialog);
    // The function leaves the queue before it runs: a dialog inside the dialog takes the next one.
    if (const auto function = Next(dialogs_)) (*function)(form);
  } catch (...) {
    Fail(std::current_exception());
  }
  if (!alive) return QDialog::Rejected;
  if (dialog.isVisible()) Cancel(dialog);
  return dialog.result();
}

std::optional<std::filesystem::path> Interaction::NextFile() {
  std::optional<std::filesystem::path> file = Next(files_);
  if (file && file->empty()) return std::nullopt;
  return file;
}

}  // namespace automation
