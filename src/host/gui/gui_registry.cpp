// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/gui_registry.h"

namespace Framework {

void GUIRegistry::AddInstantiator(const std::string& name,
                                  const GUIInstantiatorBase* instantiator) {
  rows_.emplace_back(name, instantiator);
}

void GUIRegistry::RemoveInstantiator(const GUIInstantiatorBase* instantiator) {
  std::erase_if(rows_, [&](const auto& row) { return row.second == instantiator; });
}

const GUIInstantiatorBase* GUIRegistry::Find(const std::string& name) const {
  for (const auto& [known, instantiator] : rows_) {
    if (known == name) return instantiator;
  }
  return nullptr;
}

std::vector<std::string> GUIRegistry::Names() const {
  std::vector<std::string> names;
  for (const auto& row : rows_) names.push_back(row.first);
  return names;
}

GUIRegistry& GUIPageRegistry() {
  static GUIRegistry registry;
  return registry;
}

}  // namespace Framework
