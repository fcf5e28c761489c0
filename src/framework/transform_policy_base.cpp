// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "framework/transform_policy_base.h"

#include <filesystem>
#include <stdexcept>

#include "host/gui/tool.h"
#include "host/project/ost_exception.h"
#include "host/project/run_time_db.h"
#include "host/project/stylesheet_file.h"
#include "host/project/support_files.h"

namespace Framework {

using platform::xml::Document;
using platform::xml::Processor;
using platform::xml::Stylesheet;

TransformPolicyBase::TransformPolicyBase(const std::string& toolName)
    : tool_(Tool::GetInstance(toolName.c_str())) {
  if (!tool_) throw std::runtime_error("Invalid toolname");
}

TransformPolicyBase::~TransformPolicyBase() = default;

bool TransformPolicyBase::LoadTransform(const std::vector<const char*>& /*names*/) { return true; }

void TransformPolicyBase::LoadStylesheet(const std::vector<const char*>& names) {
  if (names.empty() || !names.front() || !*names.front()) {
    stylesheet_.reset();
    return;
  }
  valid_ = false;
  const std::string path = GetToolFilePath(tool_->GetProject(), names.front());
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) return;
  try {
    const Document source = ReadStylesheetFile(path, tool_->GetProject());
    stylesheet_ = Stylesheet::Compile(source, path);
    neededFragments_.assign(names.begin() + 1, names.end());
    if (neededFragments_.empty()) neededFragments_ = ExtractNeededDBFragmentNames(source);
    valid_ = true;
  } catch (const OstException&) {
    throw;
  } catch (const std::runtime_error&) {
    // The policy stays not valid; the host asks the file what is wrong with it.
    stylesheet_.reset();
  }
}

std::optional<Document> TransformPolicyBase::Run(const RunTimeDB& database,
                                                 const std::vector<std::string>& fragments,
                                                 platform::xml::Element last) const {
  std::optional<Document> made;
  database.Lend(fragments, last, [&](const Document& input) {
    Processor processor(*stylesheet_);
    Document output;
    processor.SetInput(input);
    processor.SetOutput(output);
    if (processor.Transform()) made = output;
  });
  return made;
}

}  // namespace Framework
