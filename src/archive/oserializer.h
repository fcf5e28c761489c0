// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/basic_serializer.h"

namespace zel::archive {

class xml_oarchive;
class zel_basic_pointer_oserializer;

/// Writes the objects of one class.
class zel_basic_oserializer : public zel_basic_serializer {
 public:
  /// Writes what the class's `serialize` names, with the class's own version.
  virtual void save_object_data(xml_oarchive& archive, const void* object) const = 0;

  /// Null as long as the program serializes no pointer to the class.
  [[nodiscard]] const zel_basic_pointer_oserializer* pointer_serializer() const noexcept {
    return pointer_serializer_;
  }
  void set_pointer_serializer(const zel_basic_pointer_oserializer& serializer) const noexcept {
    pointer_serializer_ = &serializer;
    set_through_pointers();
  }

 protected:
  using zel_basic_serializer::zel_basic_serializer;
  ~zel_basic_oserializer() = default;

 private:
  mutable const zel_basic_pointer_oserializer* pointer_serializer_ = nullptr;
};

/// Writes objects of one class that are held by pointers.
class zel_basic_pointer_oserializer {
 public:
  zel_basic_pointer_oserializer(const zel_basic_pointer_oserializer&) = delete;
  zel_basic_pointer_oserializer& operator=(const zel_basic_pointer_oserializer&) = delete;

  [[nodiscard]] const zel_basic_oserializer& serializer() const noexcept { return serializer_; }

 protected:
  explicit zel_basic_pointer_oserializer(const zel_basic_oserializer& serializer) noexcept
      : serializer_(serializer) {
    serializer.set_pointer_serializer(*this);
  }
  ~zel_basic_pointer_oserializer() = default;

 private:
  const zel_basic_oserializer& serializer_;
};

/// The one output serializer of T, made on first use.
template <class Archive, class T>
class zel_oserializer final : public zel_basic_oserializer {
 public:
  static const zel_oserializer& instance() {
    static const zel_oserializer serializer;
    return serializer;
  }

  void save_object_data(xml_oarchive& archive, const void* object) const override {
    serialization<T>::save(static_cast<Archive&>(archive),
                           *const_cast<T*>(static_cast<const T*>(object)), version());
  }

 private:
  zel_oserializer() noexcept
      : zel_basic_oserializer(extended_type_info_typeid<T>::instance(), serialization<T>::version,
                              tracking_of<T>, std::is_polymorphic_v<T>) {}
};

/// The one pointer serializer of T. It exists from the load of the module that names it.
template <class Archive, class T>
class zel_pointer_oserializer final : public zel_basic_pointer_oserializer {
 public:
  static const zel_pointer_oserializer& instance() {
    static const zel_pointer_oserializer serializer;
    return serializer;
  }
  /// Naming it makes the serializer exist before the first archive does.
  static const zel_pointer_oserializer& at_load;

 private:
  zel_pointer_oserializer() noexcept
      : zel_basic_pointer_oserializer(zel_oserializer<Archive, T>::instance()) {}
};

template <class Archive, class T>
const zel_pointer_oserializer<Archive, T>& zel_pointer_oserializer<Archive, T>::at_load =
    zel_pointer_oserializer<Archive, T>::instance();

}  // namespace zel::archive
