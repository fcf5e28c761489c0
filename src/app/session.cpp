// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/session.h"

#include <cstdlib>
#include <vector>

#include "host/gui/class_registry.h"
#include "host/gui/extension_library.h"
#include "host/gui/extension_module.h"
#include "host/gui/ost_doc_template.h"
#include "host/gui/page_host.h"
#include "host/gui/tool.h"
#include "host/project/database_schema.h"
#include "host/project/ost_exception.h"
#include "host/project/ost_project.h"
#include "host/project/page_table.h"
#include "host/project/run_time_db.h"
#include "host/project/support_files.h"

namespace app {

namespace {

constexpr const char* kLibrary = "VeskSystemDefinition.so";

/// The plug-in stands in the folder `sysdef` beside the host's libraries.
std::filesystem::path LibraryFile() {
  if (const char* file = std::getenv("SYSDEF_PLUGIN"); file && *file) return file;
  return Framework::HostLibraryFolder() / "sysdef" / kLibrary;
}

/// Loaded once and kept: the classes it registered are used until the program ends.
void LoadLibrary() { static const Framework::ExtensionLibrary library(LibraryFile()); }

std::unique_ptr<Framework::Tool> MakeTool() {
  LoadLibrary();
  for (const auto* module : Framework::ExtensionModules()) {
    const auto name = module->strings.find(Framework::kToolClassString);
    if (name == module->strings.end()) continue;
    std::unique_ptr<Framework::DynamicObject> made(
        Framework::ClassRegistry::Instance().Create(name->second));
    if (auto* tool = dynamic_cast<Framework::Tool*>(made.get())) {
      static_cast<void>(made.release());
      return std::unique_ptr<Framework::Tool>(tool);
    }
  }
  throw OstException(LibraryFile().string() + ": the library brings no tool");
}

std::filesystem::path ProjectFile(const std::filesystem::path& named) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(named, ignored)) return named;
  std::vector<std::filesystem::path> found;
  for (const auto& entry : std::filesystem::directory_iterator(named, ignored)) {
    if (entry.path().extension() == ".ostproj") found.push_back(entry.path());
  }
  if (found.size() == 1) return found.front();
  throw OstException(named.string() + (found.empty() ? ": no project in this folder"
                                                     : ": more than one project in this folder"));
}

}  // namespace

Session::Session(const std::filesystem::path& project)
    : project_(std::make_unique<OstProject>(ProjectFile(project))),
      schema_(std::make_unique<Framework::DatabaseSchema>(project_.get())),
      database_(
          std::make_unique<Framework::RunTimeDB>(project_->RunTimeDBFile(), schema_->Numbers())),
      tool_(MakeTool()) {
  // A project whose page table is damaged would show no page at all.
  static_cast<void>(ReadPageTable(*project_));
  tool_->SetRunTimeDB(database_.get());
  tool_->SetProject(project_.get());
}

Session::~Session() = default;

Framework::PageHost& Session::Pages() const { return tool_->Pages(); }

}  // namespace app
