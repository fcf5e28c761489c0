// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/ost_project.h"

#include <limits>
#include <system_error>

#include "host/project/ost_exception.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/text/number.h"
#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

namespace {

using platform::xml::Document;
using platform::xml::Element;

// A project file is a page of keys; what is larger is not one.
constexpr std::size_t kProjectFileLimit = 16u << 20;

Document ReadProjectFile(const std::filesystem::path& file) {
  try {
    const auto bytes = platform::ReadFile(file, kProjectFileLimit);
    if (!bytes) throw OstException(file.string() + ": no such file");
    return Document::Parse(*bytes);
  } catch (const platform::FileError& error) {
    throw OstException(error.what());
  } catch (const platform::xml::XmlError& error) {
    throw OstException(Located(file.string(), error));
  }
}

[[noreturn]] void Refuse(const std::filesystem::path& file, Element at, const std::string& text) {
  throw OstException(file.string() + ":" + std::to_string(at.Line()) + ": " + text);
}

}  // namespace

OstProject::OstProject(const std::filesystem::path& file) {
  std::error_code ignored;
  const auto absolute = std::filesystem::absolute(file, ignored);
  file_ = ignored ? file : absolute.lexically_normal();
  const Document document = ReadProjectFile(file);
  const Element root = document.Root();
  if (root.BaseName() != "OstProject") {
    Refuse(file, root, "the document element is not OstProject");
  }
  const std::string database = root.Attribute("runtimedb", "runtimedb.xml");
  if (database.empty()) Refuse(file, root, "the attribute runtimedb names no file");
  database_ = file_.parent_path() / database;
  for (Element key = root.FirstChild(); key; key = key.NextSibling()) {
    if (key.BaseName() != "Key") continue;
    const auto name = key.Attribute("name");
    if (!name || name->empty()) Refuse(file, key, "a Key without a name");
    if (!keys_.emplace(*name, key.Text()).second) {
      Refuse(file, key, "the Key " + *name + " stands here a second time");
    }
  }
}

void OstProject::OnToolAttach(OstTool* /*tool*/, bool /*attached*/) {}

std::string OstProject::GetText(const std::string& key, const std::string& otherwise) const {
  const auto found = keys_.find(key);
  return found == keys_.end() ? otherwise : found->second;
}

double OstProject::GetNumber(const std::string& key, double otherwise) const {
  const auto found = keys_.find(key);
  if (found == keys_.end()) return otherwise;
  return platform::ParseNumber(found->second).value_or(otherwise);
}

int OstProject::GetInteger(const std::string& key, int otherwise) const {
  const auto found = keys_.find(key);
  if (found == keys_.end()) return otherwise;
  const auto value = platform::ParseInteger(found->second);
  if (!value || *value < std::numeric_limits<int>::min() ||
      *value > std::numeric_limits<int>::max()) {
    return otherwise;
  }
  return static_cast<int>(*value);
}
