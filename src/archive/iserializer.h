// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>

#include "archive/basic_serializer.h"

namespace zel::archive {

class xml_iarchive;
class zel_basic_pointer_iserializer;

/// Reads the objects of one class.
class zel_basic_iserializer : public zel_basic_serializer {
 public:
  /// Reads what the class's `serialize` names; `version` is the one the archive holds.
  virtual void load_object_data(xml_iarchive& archive, void* object, unsigned version) const = 0;

  /// Null as long as the program serializes no pointer to the class.
  [[nodiscard]] const zel_basic_pointer_iserializer* pointer_serializer() const noexcept {
    return pointer_serializer_;
  }
  void set_pointer_serializer(const zel_basic_pointer_iserializer& serializer) const noexcept {
    pointer_serializer_ = &serializer;
    set_through_pointers();
  }

 protected:
  using zel_basic_serializer::zel_basic_serializer;
  ~zel_basic_iserializer() = default;

 private:
  mutable const zel_basic_pointer_iserializer* pointer_serializer_ = nullptr;
};

/// Makes and reads objects of one class that are held by pointers.
class zel_basic_pointer_iserializer {
 public:
  zel_basic_pointer_iserializer(const zel_basic_pointer_iserializer&) = delete;
  zel_basic_pointer_iserializer& operator=(const zel_basic_pointer_iserializer&) = delete;

  [[nodiscard]] const zel_basic_iserializer& serializer() const noexcept { return serializer_; }
  /// A new object on the heap, the caller's; null when the class is abstract.
  [[nodiscard]] virtual void* create() const = 0;
  virtual void destroy(void* object) const noexcept = 0;
  /// Takes the object over.
  [[nodiscard]] virtual std::shared_ptr<void> share(void* object) const = 0;

 protected:
  explicit zel_basic_pointer_iserializer(const zel_basic_iserializer& serializer) noexcept
      : serializer_(serializer) {
    serializer.set_pointer_serializer(*this);
  }
  ~zel_basic_pointer_iserializer() = default;

 private:
  const zel_basic_iserializer& serializer_;
};

/// The one input serializer of T, made on first use.
template <class Archive, class T>
class zel_iserializer final : public zel_basic_iserializer {
 public:
  static const zel_iserializer& instance() {
    static const zel_iserializer serializer;
    return serializer;
  }

  void load_object_data(xml_iarchive& archive, void* object, unsigned version) const override {
    serialization<T>::load(static_cast<Archive&>(archive), *static_cast<T*>(object), version);
  }

 private:
  zel_iserializer() noexcept
      : zel_basic_iserializer(extended_type_info_typeid<T>::instance(), serialization<T>::version,
                              tracking_of<T>, std::is_polymorphic_v<T>) {}
};

/// The one pointer serializer of T. It exists from the load of the module that names it.
template <class Archive, class T>
class zel_pointer_iserializer final : public zel_basic_pointer_iserializer {
 public:
  static const zel_pointer_iserializer& instance() {
    static const zel_pointer_iserializer serializer;
    return serializer;
  }
  /// Naming it makes the serializer exist before the first archive does.
  static const zel_pointer_iserializer& at_load;

  [[nodiscard]] void* create() const override { return access::create<T>(); }
  void destroy(void* object) const noexcept override { delete static_cast<T*>(object); }
  [[nodiscard]] std::shared_ptr<void> share(void* object) const override {
    return std::shared_ptr<T>(static_cast<T*>(object));
  }

 private:
  zel_pointer_iserializer() noexcept
      : zel_basic_pointer_iserializer(zel_iserializer<Archive, T>::instance()) {}
};

template <class Archive, class T>
const zel_pointer_iserializer<Archive, T>& zel_pointer_iserializer<Archive, T>::at_load =
    zel_pointer_iserializer<Archive, T>::instance();

}  // namespace zel::archive
