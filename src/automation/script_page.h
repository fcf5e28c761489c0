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

/// Opens a page and shows its window when nobody else does. Throws as PageHost::Open.
Form OpenPage(Framework::PageHost& host, const std::string& name);

}  // namespace automation
