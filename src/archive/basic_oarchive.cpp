// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstring>
#include <map>
#include <typeindex>

#include "archive/basic_archive.h"
#include "archive/xml_oarchive.h"

namespace zel::archive {

using boost::archive::archive_exception;

namespace {

/// Longer export keys are refused, in writing as in reading.
constexpr std::size_t kLongestKey = 127;

const char* key_of(const zel_basic_oserializer& serializer) {
  const char* key = serializer.type().key();
  if (key == nullptr) throw archive_exception(archive_exception::unregistered_class);
  if (std::strlen(key) > kLongestKey) {
    throw archive_exception(archive_exception::invalid_class_name);
  }
  return key;
}

}  // namespace

struct zel_basic_oarchive::registry {
  struct object_record {
    int id;
    bool through_pointer;
  };

  /// The class's id, and whether it appears for the first time.
  std::pair<int, bool> class_id(const zel_basic_oserializer& serializer) {
    const auto [entry, is_new] =
        classes.try_emplace(serializer.type().type(), static_cast<int>(classes.size()));
    return {entry->second, is_new};
  }
  /// The object's record, and whether it appears for the first time. A class is part of the
  /// identity: an object and its first member share an address.
  std::pair<object_record, bool> object(const void* address, int class_id, bool through_pointer) {
    const auto [entry, is_new] = objects.try_emplace(
        {address, class_id}, object_record{static_cast<int>(objects.size()), through_pointer});
    return {entry->second, is_new};
  }

  std::map<std::type_index, int> classes;
  std::map<std::pair<const void*, int>, object_record> objects;
};

zel_basic_oarchive::zel_basic_oarchive(xml_oarchive& archive, std::uint32_t flags)
    : archive_(archive), flags_(flags) {}

zel_basic_oarchive::~zel_basic_oarchive() = default;

zel_basic_oarchive::registry& zel_basic_oarchive::known() {
  if (!registry_) registry_ = std::make_unique<registry>();
  return *registry_;
}

void zel_basic_oarchive::describe(const zel_basic_oserializer& serializer) {
  archive_.save_info(class_info::tracking_level, serializer.is_tracked() ? 1 : 0);
  archive_.save_info(class_info::version, serializer.version());
}

void zel_basic_oarchive::save_described_object(const void* object,
                                               const zel_basic_oserializer& serializer) {
  const auto [class_id, is_new_class] = known().class_id(serializer);
  if (is_new_class) {
    archive_.save_info(class_info::class_id, class_id);
    describe(serializer);
  }
  save_once(object, class_id, serializer, false);
}

void zel_basic_oarchive::save_pointer(const void* object,
                                      const zel_basic_pointer_oserializer& pointer_serializer) {
  const zel_basic_oserializer& serializer = pointer_serializer.serializer();
  if (!has_class_info()) return serializer.save_object_data(archive_, object);
  if (object == nullptr) return archive_.save_info(class_info::class_id, kNullClassId);
  const auto [class_id, is_new_class] = known().class_id(serializer);
  if (is_new_class) {
    archive_.save_info(class_info::class_id, class_id);
    if (serializer.is_polymorphic()) archive_.save_class_name(key_of(serializer));
    describe(serializer);
  } else {
    archive_.save_info(class_info::class_id_reference, class_id);
  }
  save_once(object, class_id, serializer, true);
}

void zel_basic_oarchive::save_once(const void* object, int class_id,
                                   const zel_basic_oserializer& serializer, bool through_pointer) {
  if (!serializer.is_tracked()) return serializer.save_object_data(archive_, object);
  const auto [record, is_new] = known().object(object, class_id, through_pointer);
  if (is_new) {
    archive_.save_info(class_info::object_id, record.id);
    return serializer.save_object_data(archive_, object);
  }
  if (record.through_pointer && !through_pointer) {
    throw archive_exception(archive_exception::pointer_conflict);
  }
  archive_.save_info(class_info::object_id_reference, record.id);
}

}  // namespace zel::archive
