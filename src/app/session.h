// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <memory>

class OstProject;

namespace Framework {
class DatabaseSchema;
class ExtensionLibrary;
class PageHost;
class RunTimeDB;
class Tool;
}  // namespace Framework

namespace app {

/// An open project with the tool attached to it.
class Session {
 public:
  /// `project` is a project file, or a folder that holds one. Throws OstException with one line
  /// that names the file.
  explicit Session(const std::filesystem::path& project);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  [[nodiscard]] OstProject& Project() const noexcept { return *project_; }
  [[nodiscard]] Framework::RunTimeDB& Database() const noexcept { return *database_; }
  [[nodiscard]] const Framework::DatabaseSchema& Schema() const noexcept { return *schema_; }
  [[nodiscard]] Framework::Tool& Tool() const noexcept { return *tool_; }
  [[nodiscard]] Framework::PageHost& Pages() const;

 private:
  std::unique_ptr<OstProject> project_;
  std::unique_ptr<Framework::DatabaseSchema> schema_;
  std::unique_ptr<Framework::RunTimeDB> database_;
  std::unique_ptr<Framework::Tool> tool_;
};

}  // namespace app
