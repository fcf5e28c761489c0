// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <deque>
#include <exception>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QDialog;

namespace automation {

class Form;

/// While it lives, answers the host's message boxes, modal dialogs and file choices from queues,
/// in place of the person. One at a time; afterwards the host shows them again.
class Interaction {
 public:
  using DialogFunction = std::function<void(Form& dialog)>;

  /// A message box as it was asked; `answer` is the code that was given.
  struct Message {
    std::string text;
    std::string caption;
    unsigned style;
    int answer;
  };

  Interaction();
  ~Interaction();
  Interaction(const Interaction&) = delete;
  Interaction& operator=(const Interaction&) = delete;

  /// The answer of the next question, a box with more than one button. Without one the default
  /// button answers, as it does for an answer that the question does not offer (a failure).
  void Answer(int answer) { answers_.push_back(answer); }
  /// What to do with the next modal dialog once it is shown. A dialog that is still open
  /// afterwards, or for which nothing is queued, is cancelled.
  void OnDialog(DialogFunction function) { dialogs_.push_back(std::move(function)); }
  /// The file that the next file dialog answers; an empty path cancels, as does an empty queue.
  void ChooseFile(std::filesystem::path file) { files_.push_back(std::move(file)); }

  /// The message boxes since the last call.
  [[nodiscard]] std::vector<Message> TakeMessages();

  /// Throws what a dialog function threw since the last call, or that an answer did not fit; the
  /// page in between saw a cancelled dialog or a default answer. Of several the first.
  void RethrowFailure();

 private:
  int AnswerMessage(const std::string& text, const std::string& caption, unsigned style);
  int NextAnswer(const std::string& text, unsigned style);
  int RunDialog(QDialog& dialog);
  std::optional<std::filesystem::path> NextFile();
  void Fail(std::exception_ptr failure);

  std::deque<int> answers_;
  std::deque<DialogFunction> dialogs_;
  std::deque<std::filesystem::path> files_;
  std::vector<Message> messages_;
  std::exception_ptr failure_;
};

}  // namespace automation
