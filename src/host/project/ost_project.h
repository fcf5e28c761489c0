// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <map>
#include <string>

class OstTool;

/// A project: a file with the project's keys, and beside it the run-time database and the folders
/// of the project. Keys are given as text; number look-ups convert the text.
class OstProject {
 public:
  /// An empty project without a file, for tools that are looked at on their own.
  OstProject() = default;
  virtual ~OstProject() = default;
  OstProject(const OstProject&) = delete;
  OstProject& operator=(const OstProject&) = delete;

  /// Reads the project file. Throws OstException with one line that names the file (and line).
  explicit OstProject(const std::filesystem::path& file);

  /// Whether a tool may attach itself now.
  virtual bool AcceptsTools() { return true; }
  /// A tool was attached, or turned away.
  virtual void OnToolAttach(OstTool* tool, bool attached);
  /// A tool is about to save.
  virtual void OnBeforeSave() {}

  /// The key's text as written, or `otherwise` when there is no such key.
  [[nodiscard]] std::string GetText(const std::string& key, const std::string& otherwise) const;
  /// The key's text as a number; `otherwise` when there is no such key or its text is none.
  [[nodiscard]] double GetNumber(const std::string& key, double otherwise) const;
  [[nodiscard]] int GetInteger(const std::string& key, int otherwise) const;
  /// Sets a key for as long as the project is open; the file is not written.
  void SetKey(const std::string& key, const std::string& text) { keys_[key] = text; }

  [[nodiscard]] const std::filesystem::path& File() const noexcept { return file_; }
  /// The folder that holds the project file, and its library folders such as "Lamps".
  [[nodiscard]] std::filesystem::path Folder() const { return file_.parent_path(); }
  [[nodiscard]] const std::filesystem::path& RunTimeDBFile() const noexcept { return database_; }

 private:
  std::filesystem::path file_;
  std::filesystem::path database_;
  std::map<std::string, std::string> keys_;
};
