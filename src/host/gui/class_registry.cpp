// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/class_registry.h"

#include <utility>

namespace Framework {

ClassRegistry& ClassRegistry::Instance() {
  static ClassRegistry registry;
  return registry;
}

void ClassRegistry::Add(const std::string& className, Factory factory) {
  factories_.emplace_back(className, std::move(factory));
}

void ClassRegistry::Remove(const std::string& className) {
  std::erase_if(factories_, [&](const auto& row) { return row.first == className; });
}

DynamicObject* ClassRegistry::Create(const std::string& className) const {
  for (const auto& [name, factory] : factories_) {
    if (name == className) return factory();
  }
  return nullptr;
}

std::vector<std::string> ClassRegistry::Names() const {
  std::vector<std::string> names;
  for (const auto& row : factories_) names.push_back(row.first);
  return names;
}

}  // namespace Framework
