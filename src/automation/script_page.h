// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "automation/script_form.h"

namespace Framework {
class PageHost;
class ToolPropertyPage;
}  // namespace Framework

namespace automation {

/// An open page as scripts see it.
class ScriptPage : public ScriptForm {
  Q_OBJECT

 public:
  ScriptPage(ScriptContext& context, Framework::PageHost& host, std::string name);

  Q_INVOKABLE bool apply();
  Q_INVOKABLE void reopen();

 private:
  Framework::PageHost& host_;
  std::string name_;
};

/// Opens a page as the window does when a person chooses it: it hears that it is shown, and takes
/// what other pages have stored since. Throws as PageHost::Open, and AutomationError when the page
/// refuses.
Framework::ToolPropertyPage& ActivatePage(Framework::PageHost& host, const std::string& name);

/// The same, and shows the page's window when nobody else does.
Form OpenPage(Framework::PageHost& host, const std::string& name);

}  // namespace automation
