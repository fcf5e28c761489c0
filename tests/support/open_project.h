// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/session.h"
#include "host/gui/message_box.h"
#include "support/temp_folder.h"

namespace test {

/// A message box that was shown.
struct ShownBox {
  std::string text;
  std::string caption;
  unsigned style;
};

/// A project in a folder of its own, open with the real plug-in; message boxes are recorded and
/// answered by `answer`.
class OpenProject {
 public:
  explicit OpenProject(const std::string& database, const std::string& keys = {});
  ~OpenProject();

  [[nodiscard]] app::Session& Session() const { return *session_; }
  [[nodiscard]] const TempFolder& Folder() const { return folder_; }
  /// Closes and opens the project again, as a new start of the program does.
  void Restart();
  /// The boxes since the last call.
  std::vector<ShownBox> TakeBoxes() { return std::exchange(boxes_, {}); }

  int answer = msgbox::kAnswerOk;

 private:
  TempFolder folder_;
  std::unique_ptr<app::Session> session_;
  std::vector<ShownBox> boxes_;
};

}  // namespace test
