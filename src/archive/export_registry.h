// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string_view>
#include <typeinfo>
#include <vector>

namespace zel::archive {

class extended_type_info;
class zel_basic_pointer_iserializer;
class zel_basic_pointer_oserializer;

/// One exported class: what its pointers are written and read by.
struct exported_class {
  extended_type_info* type;
  const zel_basic_pointer_iserializer* input;
  const zel_basic_pointer_oserializer* output;
};

/// How a pointer to one class becomes a pointer to a base of it.
struct void_cast {
  const std::type_info* derived;
  const std::type_info* base;
  void* (*upcast)(void*);
};

/// The classes of this module that pointers name by an export key, in the order they were
/// exported. The static objects of export.h fill it when the module is loaded and clear it when
/// it is unloaded; it is used by one thread.
class export_registry {
 public:
  static export_registry& instance();

  void add(const exported_class& entry) { classes_.push_back(entry); }
  void add(const void_cast& cast) { casts_.push_back(cast); }
  /// Forgets the class that was exported with this type information, and its casts.
  void remove(const extended_type_info& type);

  [[nodiscard]] const std::vector<exported_class>& classes() const noexcept { return classes_; }
  /// Null when there is none.
  [[nodiscard]] const exported_class* find(const std::type_info& type) const noexcept;
  [[nodiscard]] const exported_class* find_key(std::string_view key) const noexcept;
  /// The object as one of its bases, through any number of exported casts; null when it is none.
  [[nodiscard]] void* upcast(void* object, const std::type_info& from,
                             const std::type_info& to) const;

 private:
  std::vector<exported_class> classes_;
  std::vector<void_cast> casts_;
};

}  // namespace zel::archive
