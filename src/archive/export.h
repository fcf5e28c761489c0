// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/export_registry.h"
#include "archive/xml_iarchive.h"
#include "archive/xml_oarchive.h"

namespace zel::archive {

/// Exports a class while it lives, so that pointers to it can be written and read under `key` (a
/// literal), also pointers to one of the Bases named here:
///
///     const class_export<PulseInfo> exportPulseInfo{"PulseInfo"};
///
/// as a static object of the module that owns the class.
template <class T, class... Bases>
class class_export {
 public:
  explicit class_export(const char* key) : type_(extended_type_info_typeid<T>::instance()) {
    export_registry& registry = export_registry::instance();
    type_.set_key(key);
    registry.add(exported_class{&type_, &zel_pointer_iserializer<xml_iarchive, T>::instance(),
                                &zel_pointer_oserializer<xml_oarchive, T>::instance()});
    (registry.add(void_cast{&typeid(T), &typeid(Bases), &upcast<Bases>}), ...);
  }
  ~class_export() {
    export_registry::instance().remove(type_);
    type_.set_key(nullptr);
  }
  class_export(const class_export&) = delete;
  class_export& operator=(const class_export&) = delete;

 private:
  template <class Base>
  static void* upcast(void* object) {
    return static_cast<Base*>(static_cast<T*>(object));
  }

  extended_type_info& type_;
};

}  // namespace zel::archive
