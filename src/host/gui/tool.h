// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/gui/class_registry.h"
#include "host/gui/ost_tool.h"

class OstDocTemplate;
class OstProject;
class QWidget;

namespace Framework {

class PageHost;
class RunTimeDB;

/// A tool of the suite: known by its name while it lives, attached to at most one project, whose
/// run-time database it shares. The project and the database belong to the host.
class Tool : public OstTool, public DynamicObject {
 public:
  /// `standalone`: the tool has no part in building the device's configuration; its build flag
  /// starts off. Throws OstException when a live tool has the name already.
  Tool(const char* name, const char* title, bool standalone);
  ~Tool() override;
  Tool(const Tool&) = delete;
  Tool& operator=(const Tool&) = delete;

  /// The live tool of that name, or null.
  static Tool* GetInstance(const char* name);

  [[nodiscard]] const char* GetToolName() const override { return name_.c_str(); }
  [[nodiscard]] const std::string& GetTitle() const noexcept { return title_; }

  virtual void SetProject(OstProject* project);
  [[nodiscard]] OstProject* GetProject() const noexcept { return project_; }
  /// Writes the run-time database and clears the save flag: 1 on success. On failure 0, the flag
  /// stays and LastError says why.
  virtual int Save();
  [[nodiscard]] const std::string& LastError() const noexcept { return lastError_; }

  /// The database the host set, or null.
  [[nodiscard]] virtual RunTimeDB* GetRunTimeDB() { return database_; }
  void SetRunTimeDB(RunTimeDB* database) noexcept { database_ = database; }

  /// Drops what was not saved: the database is read anew and every open page shown from it.
  /// Throws OstException when the file is damaged; nothing is dropped then.
  virtual void Reload();
  /// The files that hold the tool's data.
  [[nodiscard]] virtual std::vector<std::string> GetFilenames() const;

  /// The tool's frame with its view, made from the document template at the first call; null when
  /// the template cannot make them. Owned by the tool until it is put into another widget.
  virtual QWidget* OpenGui();
  virtual void CloseGui();
  /// The tool's open pages.
  [[nodiscard]] PageHost& Pages();

  void SetNeedToSave(int need);
  void SetNeedToBuild(int need);
  /// An edit of the tool's data: they need a save and, while the build flag is on, a build.
  void MarkModified();
  [[nodiscard]] bool NeedToSave() const noexcept { return needToSave_; }
  [[nodiscard]] bool NeedToBuild() const noexcept { return needToBuild_; }
  /// The build flag: whether an edit of this tool's data asks for a build.
  [[nodiscard]] bool BuildsOnChange() const noexcept { return buildsOnChange_; }
  void SetBuildsOnChange(bool builds) noexcept { buildsOnChange_ = builds; }

  /// Called after either flag changed; one listener, empty for none.
  void SetFlagListener(std::function<void()> listener) { flagListener_ = std::move(listener); }

  [[nodiscard]] OstDocTemplate* GetDocTemplate() const noexcept { return docTemplate_.get(); }

 protected:
  /// Made by the derived tool, owned from then on.
  std::unique_ptr<OstDocTemplate> docTemplate_;

 private:
  std::string name_;
  std::string title_;
  OstProject* project_ = nullptr;
  RunTimeDB* database_ = nullptr;
  bool needToSave_ = false;
  bool needToBuild_ = false;
  bool buildsOnChange_;
  std::string lastError_;
  std::function<void()> flagListener_;
  std::unique_ptr<PageHost> pages_;
};

}  // namespace Framework
