// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "archive/archive_flags.h"

namespace zel::archive {

class zel_basic_oserializer;
class zel_basic_pointer_oserializer;
class zel_basic_iserializer;
class zel_basic_pointer_iserializer;
class extended_type_info;
class xml_oarchive;
class xml_iarchive;

/// What a start tag says of the object its element holds; each is one attribute.
enum class class_info {
  class_id,
  class_id_reference,
  object_id,
  object_id_reference,
  tracking_level,
  version,
  class_name
};

/// The attribute name of a piece of class information under the flags' naming.
[[nodiscard]] const char* attribute_name(class_info info, std::uint32_t flags) noexcept;

/// The class id that stands for a null pointer.
inline constexpr int kNullClassId = -1;

/// The part of an output archive that knows classes and objects: it numbers classes and tracked
/// objects in order of first appearance, from 0, and writes each tracked object once.
class zel_basic_oarchive {
 public:
  zel_basic_oarchive(const zel_basic_oarchive&) = delete;
  zel_basic_oarchive& operator=(const zel_basic_oarchive&) = delete;

  [[nodiscard]] std::uint32_t flags() const noexcept { return flags_; }

 protected:
  zel_basic_oarchive(xml_oarchive& archive, std::uint32_t flags);
  ~zel_basic_oarchive();

  [[nodiscard]] bool has_class_info() const noexcept { return (flags_ & flags::kNoClassInfo) == 0; }
  /// An object held by value, class information first. An object that was already written through
  /// a pointer throws pointer_conflict: reading could not put it in two places.
  void save_described_object(const void* object, const zel_basic_oserializer& serializer);
  /// An object held by a pointer. `object` is the most derived object; null is written as such.
  void save_pointer(const void* object, const zel_basic_pointer_oserializer& serializer);

 private:
  struct registry;
  [[nodiscard]] registry& known();
  void describe(const zel_basic_oserializer& serializer);
  void save_once(const void* object, int class_id, const zel_basic_oserializer& serializer,
                 bool through_pointer);

  xml_oarchive& archive_;
  std::uint32_t flags_;
  std::unique_ptr<registry> registry_;
};

/// Who owns an object that is made for a pointer.
enum class ownership { caller, shared, unique };

/// The part of an input archive that knows classes and objects.
class zel_basic_iarchive {
 public:
  zel_basic_iarchive(const zel_basic_iarchive&) = delete;
  zel_basic_iarchive& operator=(const zel_basic_iarchive&) = delete;

  [[nodiscard]] std::uint32_t flags() const noexcept { return flags_; }
  /// After a failed load: destroys every object that was made for a plain pointer. The pointers
  /// that were read are then no longer valid.
  void delete_created_pointers() noexcept;

 protected:
  zel_basic_iarchive(xml_iarchive& archive, std::uint32_t flags);
  ~zel_basic_iarchive();

  [[nodiscard]] bool has_class_info() const noexcept { return (flags_ & flags::kNoClassInfo) == 0; }
  void load_described_object(void* object, const zel_basic_iserializer& serializer);

  struct loaded_pointer {
    void* object = nullptr;
    std::shared_ptr<void> shared;  // with ownership::shared, what keeps the object
  };
  /// Makes and reads the object the open element holds or refers to, as a `wanted`; null for a
  /// null pointer. `own` is the one of the pointer's own class.
  loaded_pointer load_pointer(const extended_type_info& wanted,
                              const zel_basic_pointer_iserializer& own, ownership owner);

 private:
  struct registry;
  struct class_record;
  struct object_record;
  [[nodiscard]] registry& known();
  class_record& record_of(const zel_basic_iserializer& serializer);
  /// The class a pointer's id stands for: known by now, named by its key, or the pointer's own.
  class_record& pointed_class(long long id, const zel_basic_pointer_iserializer& own);
  void load_description(class_record& record);
  void remember(object_record& object);
  object_record& make(const zel_basic_iserializer& serializer, const extended_type_info& wanted,
                      ownership owner);
  loaded_pointer hand_out(object_record& object, const extended_type_info& wanted, ownership owner);

  xml_iarchive& archive_;
  std::uint32_t flags_;
  std::unique_ptr<registry> registry_;
};

}  // namespace zel::archive
