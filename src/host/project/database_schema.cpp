// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/database_schema.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

#include "host/project/ost_exception.h"
#include "host/project/ost_project.h"
#include "host/project/support_files.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/xml/xml_error.h"

namespace Framework {

namespace {

using platform::xml::Document;
using platform::xml::Element;
using platform::xml::NumericFields;

/// Finds the numeric attributes of one grammar by following its patterns from the start.
class NumberFinder {
 public:
  NumberFinder(Element grammar, NumericFields& numbers) : grammar_(grammar), numbers_(numbers) {}

  void Walk(Element pattern, const std::string& element) {
    const auto kind = pattern.BaseName();
    if (kind == "element") {
      const std::string name = pattern.Attribute("name", "");
      WalkChildren(pattern, name);
    } else if (kind == "attribute") {
      if (IsNumber(pattern)) numbers_.Add(element, pattern.Attribute("name", ""));
    } else if (kind == "ref") {
      const std::string name = pattern.Attribute("name", "");
      if (visited_.emplace(name, element).second) WalkChildren(Define(name), element);
    } else {
      WalkChildren(pattern, element);
    }
  }

 private:
  void WalkChildren(Element pattern, const std::string& element) {
    if (!pattern) return;
    for (Element child = pattern.FirstChild(); child; child = child.NextSibling()) {
      Walk(child, element);
    }
  }

  [[nodiscard]] bool IsNumber(Element pattern) const {
    if (!pattern) return false;
    static constexpr std::array<std::string_view, 8> kTypes{"double",
                                                            "float",
                                                            "decimal",
                                                            "integer",
                                                            "unsignedByte",
                                                            "unsignedInt",
                                                            "nonNegativeInteger",
                                                            "positiveInteger"};
    for (Element child = pattern.FirstChild(); child; child = child.NextSibling()) {
      const std::string type = child.Attribute("type", "");
      if (child.BaseName() == "data" &&
          std::find(kTypes.begin(), kTypes.end(), type) != kTypes.end()) {
        return true;
      }
      if (child.BaseName() == "ref" && IsNumber(Define(child.Attribute("name", "")))) return true;
    }
    return false;
  }

  [[nodiscard]] Element Define(const std::string& name) const {
    for (Element child = grammar_.FirstChild(); child; child = child.NextSibling()) {
      if (child.BaseName() == "define" && child.Attribute("name", "") == name) return child;
    }
    return {};
  }

  Element grammar_;
  NumericFields& numbers_;
  std::set<std::pair<std::string, std::string>> visited_;
};

/// The element name of the fragment that a grammar starts with.
std::string FragmentName(Element grammar) {
  const Element start = grammar.Child("start");
  const Element element = start ? start.Child("element") : Element();
  return element ? element.Attribute("name", "") : std::string();
}

void AddFiles(const std::filesystem::path& folder, std::map<std::string, std::string>& files) {
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
    if (entry.path().extension() == ".rng") {
      files[entry.path().filename().string()] = entry.path().string();
    }
  }
}

}  // namespace

DatabaseSchema::DatabaseSchema(const OstProject* project) {
  std::map<std::string, std::string> files;
  AddFiles(DataFolder() / "support", files);
  if (project && !project->File().empty()) AddFiles(project->Folder() / "support", files);
  for (const auto& [name, path] : files) Read(path);
}

void DatabaseSchema::Read(const std::string& path) {
  try {
    const auto bytes = platform::ReadFile(path, 1u << 20);
    if (!bytes) return;
    const Document source = Document::Parse(*bytes);
    const std::string fragment = FragmentName(source.Root());
    if (fragment.empty()) throw OstException(path + ": the grammar starts with no element");
    grammars_.insert_or_assign(fragment, platform::xml::RelaxNgSchema::Compile(source));
    NumberFinder(source.Root(), numbers_).Walk(source.Root().Child("start"), fragment);
  } catch (const platform::FileError& error) {
    throw OstException(error.what());
  } catch (const platform::xml::XmlError& error) {
    throw OstException(Located(path, error));
  }
}

std::vector<platform::xml::SchemaFault> DatabaseSchema::Validate(const Document& database) const {
  std::vector<platform::xml::SchemaFault> faults;
  for (Element each = database.Root().FirstChild(); each; each = each.NextSibling()) {
    const auto grammar = grammars_.find(std::string(each.BaseName()));
    if (grammar == grammars_.end()) continue;
    Document alone;
    alone.SetRootCopy(each);
    for (auto& fault : grammar->second.Validate(alone)) faults.push_back(std::move(fault));
  }
  return faults;
}

}  // namespace Framework
