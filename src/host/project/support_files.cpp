// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/support_files.h"

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "host/project/ost_project.h"
#include "platform/xml/document.h"

namespace Framework {

std::filesystem::path HostLibraryFolder() {
  Dl_info self{};
  if (dladdr(reinterpret_cast<const void*>(&HostLibraryFolder), &self) == 0) return "lib";
  std::error_code ignored;
  return std::filesystem::canonical(self.dli_fname, ignored).parent_path();
}

std::filesystem::path DataFolder() {
  if (const char* folder = std::getenv("SYSDEF_DATA"); folder && *folder) return folder;
  // The library stands in PREFIX/lib or PREFIX/lib/ARCHITECTURE.
  const auto library = HostLibraryFolder();
  std::error_code ignored;
  for (auto folder = library; folder.has_relative_path(); folder = folder.parent_path()) {
    const auto data = folder / "share" / "sysdef";
    if (std::filesystem::is_directory(data, ignored)) return data;
  }
  return library.parent_path() / "share" / "sysdef";
}

std::string GetToolFilePath(const OstProject* project, const char* fileName) {
  if (project && !project->File().empty()) {
    const auto own = project->Folder() / "support" / fileName;
    std::error_code ignored;
    if (std::filesystem::exists(own, ignored)) return own.string();
  }
  return (DataFolder() / "support" / fileName).string();
}

std::filesystem::path SupportKeyFile(const OstProject* project) {
  if (const char* file = std::getenv("SYSDEF_KEY_FILE"); file && *file) return file;
  const std::string named = project ? project->GetText(kSupportKeyFileKey, {}) : std::string();
  return named.empty() ? std::filesystem::path() : project->Folder() / named;
}

}  // namespace Framework

namespace {

using platform::xml::Element;

constexpr std::string_view kStep = "RunTimeDB/";

bool IsNameCharacter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
         (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '.';
}

void AddNames(std::string_view expression, std::vector<std::string>& names) {
  for (auto at = expression.find(kStep); at != std::string_view::npos;
       at = expression.find(kStep, at + 1)) {
    // "MyRunTimeDB/X" is another element's path.
    if (at > 0 && IsNameCharacter(expression[at - 1])) continue;
    const auto rest = expression.substr(at + kStep.size());
    const auto end = std::find_if_not(rest.begin(), rest.end(), IsNameCharacter);
    std::string name(rest.begin(), end);
    // What the archive adds for the stylesheet is no fragment of the database.
    if (name.empty() || name == "ModuleOutputs") continue;
    if (std::find(names.begin(), names.end(), name) == names.end()) {
      names.push_back(std::move(name));
    }
  }
}

void Walk(Element element, std::vector<std::string>& names) {
  for (; element; element = element.NextSibling()) {
    for (const char* attribute : std::array{"match", "select", "test", "use"}) {
      if (const auto text = element.Attribute(attribute)) AddNames(*text, names);
    }
    Walk(element.FirstChild(), names);
  }
}

}  // namespace

std::vector<std::string> ExtractNeededDBFragmentNames(const platform::xml::Document& stylesheet) {
  std::vector<std::string> names;
  Walk(stylesheet.Root(), names);
  return names;
}
