// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/export_registry.h"

#include <algorithm>

#include "archive/extended_type_info.h"

namespace zel::archive {

export_registry& export_registry::instance() {
  static export_registry registry;
  return registry;
}

void export_registry::remove(const extended_type_info& type) {
  std::erase_if(classes_, [&](const exported_class& each) { return each.type == &type; });
  std::erase_if(casts_, [&](const void_cast& each) { return *each.derived == type.type(); });
}

const exported_class* export_registry::find(const std::type_info& type) const noexcept {
  const auto found = std::ranges::find_if(
      classes_, [&](const exported_class& each) { return each.type->type() == type; });
  return found != classes_.end() ? &*found : nullptr;
}

const exported_class* export_registry::find_key(std::string_view key) const noexcept {
  const auto found = std::ranges::find_if(
      classes_, [&](const exported_class& each) { return each.type->key() == key; });
  return found != classes_.end() ? &*found : nullptr;
}

void* export_registry::upcast(void* object, const std::type_info& from,
                              const std::type_info& to) const {
  if (from == to) return object;
  for (const void_cast& cast : casts_) {
    if (*cast.derived != from) continue;
    if (void* base = upcast(cast.upcast(object), *cast.base, to)) return base;
  }
  return nullptr;
}

}  // namespace zel::archive
