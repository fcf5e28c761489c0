// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/page_host.h"

#include <algorithm>

#include "host/gui/gui_registry.h"
#include "host/gui/page_services.h"
#include "host/gui/tool.h"
#include "host/gui/tool_property_page.h"
#include "host/project/ost_exception.h"
#include "host/project/stylesheet_file.h"
#include "host/project/support_files.h"

namespace Framework {

struct PageHost::OpenPage {
  std::unique_ptr<ToolPropertyPage> page;
  bool initialised = false;
};

PageHost::PageHost(Tool& tool) : tool_(tool) {}
PageHost::~PageHost() = default;

std::vector<std::string> PageHost::Names() { return GUIPageRegistry().Names(); }

QString PageHost::Title(const std::string& name) const {
  if (const auto found = pages_.find(name); found != pages_.end()) {
    return found->second->page->Title().trimmed();
  }
  const GUIInstantiatorBase* instantiator = GUIPageRegistry().Find(name);
  if (!instantiator) return QString::fromStdString(name);
  const std::unique_ptr<ToolPropertyPage> page(instantiator->CreateInstance({}));
  return page->Title().trimmed();
}

PageServices& PageHost::Services(ToolPropertyPage& page) {
  auto* services = dynamic_cast<PageServices*>(&page);
  if (!services) throw OstException("The page " + page.Title().toStdString() + " moves no data");
  return *services;
}

const PageTableRow& PageHost::TableRow(const std::string& name) {
  const OstProject* project = tool_.GetProject();
  if (!project) throw OstException("No project is open");
  if (table_.empty()) table_ = ReadPageTable(*project);
  const auto row = std::find_if(table_.begin(), table_.end(),
                                [&](const PageTableRow& each) { return each.page == name; });
  if (row != table_.end()) return *row;
  throw OstException(GetToolFilePath(project, "pages.xml") + ": no row for the page " + name);
}

void PageHost::Configure(ToolPropertyPage& page, const PageTableRow& row) const {
  const auto load = [&](const std::string& file, bool in) {
    std::vector<const char*> names{file.c_str()};
    for (const std::string& fragment : row.fragments) names.push_back(fragment.c_str());
    PageServices& services = Services(page);
    const bool taken =
        in ? services.ConfigureInTransform(names) : services.ConfigureOutTransform(names);
    if (taken && (in ? services.InTransformLoaded() : services.OutTransformLoaded())) return;
    // The transfer itself reports nothing, so ask the file what is wrong with it.
    const std::string path = GetToolFilePath(tool_.GetProject(), file.c_str());
    throw OstException(DescribeStylesheetFault(path, tool_.GetProject()));
  };
  load(row.inStylesheet, true);
  load(row.outStylesheet, false);
}

PageHost::OpenPage& PageHost::Made(const std::string& name) {
  if (const auto found = pages_.find(name); found != pages_.end()) return *found->second;
  const GUIInstantiatorBase* instantiator = GUIPageRegistry().Find(name);
  if (!instantiator) throw OstException("There is no page " + name);
  const PageTableRow& row = TableRow(name);
  auto made = std::make_unique<OpenPage>();
  made->page.reset(instantiator->CreateInstance({}));
  Configure(*made->page, row);
  return *pages_.emplace(name, std::move(made)).first->second;
}

ToolPropertyPage& PageHost::Create(const std::string& name) { return *Made(name).page; }

ToolPropertyPage& PageHost::Open(const std::string& name) {
  OpenPage& open = Made(name);
  if (!open.initialised) Initialise(name, open);
  return *open.page;
}

void PageHost::Reopen(const std::string& name) { Initialise(name, Made(name)); }

void PageHost::Revert(const std::string& name) {
  OpenPage& open = Made(name);
  open.page->DropEdits();
  Initialise(name, open);
}

void PageHost::Initialise(const std::string& name, OpenPage& open) {
  open.page->Window();
  open.page->InitDialog();
  open.initialised = Services(*open.page).DataShown();
  if (!open.initialised) {
    throw OstException("The page " + name + " cannot be shown: its data could not be read");
  }
}

void PageHost::RevertAll() {
  for (const std::string& name : Names()) {
    if (IsOpen(name)) Revert(name);
  }
}

bool PageHost::Apply(const std::string& name) { return Open(name).OnApply() != 0; }

std::string PageHost::ApplyAll() {
  for (const std::string& name : Names()) {
    if (IsOpen(name) && !Apply(name)) return name;
  }
  return {};
}

bool PageHost::IsOpen(const std::string& name) const {
  const auto found = pages_.find(name);
  return found != pages_.end() && found->second->initialised;
}

}  // namespace Framework
