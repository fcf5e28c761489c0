// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/extension_module.h"

#include <algorithm>

namespace Framework {

namespace {

std::vector<const ExtensionModule*>& Modules() {
  static std::vector<const ExtensionModule*> modules;
  return modules;
}

}  // namespace

bool RegisterExtensionModule(const ExtensionModule& module) {
  if (FindExtensionModule(module.name)) return false;
  Modules().push_back(&module);
  return true;
}

void UnregisterExtensionModule(const ExtensionModule& module) { std::erase(Modules(), &module); }

const std::vector<const ExtensionModule*>& ExtensionModules() { return Modules(); }

const ExtensionModule* FindExtensionModule(const std::string& name) {
  const auto& modules = Modules();
  const auto found = std::find_if(modules.begin(), modules.end(),
                                  [&](const ExtensionModule* each) { return each->name == name; });
  return found == modules.end() ? nullptr : *found;
}

}  // namespace Framework
