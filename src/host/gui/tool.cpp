// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/tool.h"

#include <algorithm>
#include <string_view>

#include "host/gui/ost_doc_template.h"
#include "host/gui/page_host.h"
#include "host/gui/tool_frame.h"
#include "host/project/ost_exception.h"
#include "host/project/ost_project.h"
#include "host/project/run_time_db.h"

namespace Framework {

namespace {

std::vector<Tool*>& LiveTools() {
  static std::vector<Tool*> tools;
  return tools;
}

}  // namespace

Tool::Tool(const char* name, const char* title, bool standalone)
    : name_(name), title_(title), buildsOnChange_(!standalone) {
  if (GetInstance(name)) throw OstException("A tool named " + name_ + " is running already");
  LiveTools().push_back(this);
}

Tool::~Tool() {
  pages_.reset();
  docTemplate_.reset();
  std::erase(LiveTools(), this);
}

Tool* Tool::GetInstance(const char* name) {
  const auto& tools = LiveTools();
  const auto found = std::find_if(tools.begin(), tools.end(), [&](const Tool* tool) {
    return tool->name_ == std::string_view(name);
  });
  return found == tools.end() ? nullptr : *found;
}

void Tool::SetProject(OstProject* project) { project_ = project; }

int Tool::Save() {
  lastError_.clear();
  try {
    if (RunTimeDB* database = GetRunTimeDB()) database->Save();
  } catch (const OstException& error) {
    lastError_ = error.what();
    return 0;
  }
  SetNeedToSave(0);
  return 1;
}

void Tool::Reload() {
  if (RunTimeDB* database = GetRunTimeDB()) database->Reload();
  if (pages_) pages_->RevertAll();
  SetNeedToSave(0);
}

std::vector<std::string> Tool::GetFilenames() const {
  if (!database_) return {};
  return {database_->File().string()};
}

QWidget* Tool::OpenGui() { return docTemplate_ ? docTemplate_->OpenFrame() : nullptr; }

void Tool::CloseGui() {
  if (docTemplate_) docTemplate_->CloseFrame();
}

PageHost& Tool::Pages() {
  if (!pages_) pages_ = std::make_unique<PageHost>(*this);
  return *pages_;
}

void Tool::SetNeedToSave(int need) {
  needToSave_ = need != 0;
  if (flagListener_) flagListener_();
}

void Tool::SetNeedToBuild(int need) {
  needToBuild_ = need != 0;
  if (flagListener_) flagListener_();
}

void Tool::MarkModified() {
  if (buildsOnChange_) SetNeedToBuild(1);
  SetNeedToSave(1);
}

}  // namespace Framework
