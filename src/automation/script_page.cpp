// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_page.h"

#include <utility>

#include "automation/automation_error.h"
#include "automation/input.h"
#include "host/gui/page_host.h"
#include "host/gui/tool_property_page.h"

namespace automation {

Framework::ToolPropertyPage& ActivatePage(Framework::PageHost& host, const std::string& name) {
  Framework::ToolPropertyPage& page = host.Open(name);
  if (page.NeedUpdate()) page.InitDialog();
  if (!page.OnSetActive()) {
    throw AutomationError(QStringLiteral("the page %1 cannot be shown now").arg(page.Title()));
  }
  return page;
}

Form OpenPage(Framework::PageHost& host, const std::string& name) {
  Framework::ToolPropertyPage& page = ActivatePage(host, name);
  QWidget& window = *page.Window();
  if (!window.isVisible()) window.show();
  Settle();
  return Form(window, page.Title());
}

ScriptPage::ScriptPage(ScriptContext& context, Framework::PageHost& host, std::string name)
    : ScriptForm(context, OpenPage(host, name)), host_(host), name_(std::move(name)) {}

bool ScriptPage::apply() {
  return context_.Guard([&] {
    const bool stored = host_.Apply(name_);
    Settle();
    return stored;
  });
}

void ScriptPage::reopen() {
  context_.Guard([&] {
    host_.Reopen(name_);
    Settle();
  });
}

}  // namespace automation
