// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "support/open_project.h"

namespace test {

OpenProject::OpenProject(const std::string& database, const std::string& keys) {
  folder_.Write("test.ostproj", "<OstProject>" + keys + "</OstProject>");
  folder_.Write("runtimedb.xml", database);
  SetMessageBoxResponder(
      [this](const std::string& text, const std::string& caption, unsigned style) {
        boxes_.push_back({text, caption, style});
        return answer;
      });
  Restart();
}

OpenProject::~OpenProject() { SetMessageBoxResponder({}); }

void OpenProject::Restart() {
  session_.reset();
  session_ = std::make_unique<app::Session>(folder_.Path() / "test.ostproj");
}

}  // namespace test
