// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <limits>
#include <list>
#include <map>
#include <typeindex>

#include "archive/basic_archive.h"
#include "archive/export_registry.h"
#include "archive/xml_archive_exception.h"
#include "archive/xml_iarchive.h"

namespace zel::archive {

using boost::archive::archive_exception;

namespace {

/// Longer export keys are refused, in writing as in reading.
constexpr std::size_t kLongestKey = 127;

[[noreturn]] void fail(archive_exception::exception_code code) { throw archive_exception(code); }

void require_attribute(bool is_there) {
  if (!is_there) throw xml_archive_exception(xml_archive_exception::missing_attribute);
}

/// The object as a `wanted`; null when it is none that is known of.
void* as(const extended_type_info& wanted, void* object, const zel_basic_iserializer& serializer) {
  return export_registry::instance().upcast(object, serializer.type().type(), wanted.type());
}

const zel_basic_iserializer& exported_serializer(const std::string& key) {
  if (key.size() > kLongestKey) fail(archive_exception::invalid_class_name);
  const exported_class* found = export_registry::instance().find_key(key);
  if (found == nullptr) fail(archive_exception::unregistered_class);
  return found->input->serializer();
}

}  // namespace

struct zel_basic_iarchive::class_record {
  const zel_basic_iserializer* serializer;
  bool is_described = false;
  bool is_tracked = false;
  unsigned version = 0;
};

struct zel_basic_iarchive::object_record {
  void* object = nullptr;
  const zel_basic_iserializer* serializer = nullptr;
  const zel_basic_pointer_iserializer* maker = nullptr;  // null for an object held by value
  ownership owner = ownership::caller;
  bool is_handed_out = false;
  std::shared_ptr<void> shared;
};

struct zel_basic_iarchive::registry {
  object_record& object(long long id) {
    const auto found = objects.find(id);
    if (found == objects.end()) {
      throw xml_archive_exception(xml_archive_exception::missing_element);
    }
    return *found->second;
  }

  std::map<std::type_index, class_record> classes;
  std::map<long long, class_record*> classes_by_id;  // under the ids the document gives them
  std::list<object_record> records;
  std::map<long long, object_record*> objects;  // the tracked ones
};

zel_basic_iarchive::zel_basic_iarchive(xml_iarchive& archive, std::uint32_t flags)
    : archive_(archive), flags_(flags) {}

// What was made for a pointer that never got it is the archive's own.
zel_basic_iarchive::~zel_basic_iarchive() {
  if (!registry_) return;
  for (object_record& each : registry_->records) {
    if (each.owner == ownership::unique && !each.is_handed_out) each.maker->destroy(each.object);
  }
}

void zel_basic_iarchive::delete_created_pointers() noexcept {
  if (!registry_) return;
  for (object_record& each : registry_->records) {
    if (each.maker == nullptr || each.owner != ownership::caller || each.shared) continue;
    each.maker->destroy(std::exchange(each.object, nullptr));
  }
  registry_->objects.clear();
  std::erase_if(registry_->records, [](const object_record& each) { return !each.object; });
}

zel_basic_iarchive::registry& zel_basic_iarchive::known() {
  if (!registry_) registry_ = std::make_unique<registry>();
  return *registry_;
}

zel_basic_iarchive::class_record& zel_basic_iarchive::record_of(
    const zel_basic_iserializer& serializer) {
  return known()
      .classes.try_emplace(serializer.type().type(), class_record{&serializer})
      .first->second;
}

void zel_basic_iarchive::load_description(class_record& record) {
  if (record.is_described) return;
  record.is_described = true;
  if (archive_.has_info(class_info::class_id)) {
    known().classes_by_id.try_emplace(archive_.load_info(class_info::class_id), &record);
  }
  record.is_tracked = archive_.load_info(class_info::tracking_level) != 0;
  const long long version = archive_.load_info(class_info::version);
  if (version < 0 || version > std::numeric_limits<unsigned>::max()) {
    throw xml_archive_exception(xml_archive_exception::cannot_convert_text_to_data);
  }
  record.version = static_cast<unsigned>(version);
}

void zel_basic_iarchive::remember(object_record& object) {
  require_attribute(archive_.has_info(class_info::object_id));
  const long long id = archive_.load_info(class_info::object_id);
  if (!known().objects.try_emplace(id, &object).second) {
    fail(archive_exception::pointer_conflict);
  }
}

void zel_basic_iarchive::load_described_object(void* object,
                                               const zel_basic_iserializer& serializer) {
  class_record& record = record_of(serializer);
  load_description(record);
  if (record.is_tracked) {
    if (archive_.has_info(class_info::object_id_reference)) {
      const object_record& same =
          known().object(archive_.load_info(class_info::object_id_reference));
      if (same.object != object) fail(archive_exception::pointer_conflict);
      return;
    }
    object_record& held = known().records.emplace_back();
    held.object = object;
    held.serializer = &serializer;
    remember(held);
  }
  serializer.load_object_data(archive_, object, record.version);
}

zel_basic_iarchive::class_record& zel_basic_iarchive::pointed_class(
    long long id, const zel_basic_pointer_iserializer& own) {
  const auto found = known().classes_by_id.find(id);
  if (found != known().classes_by_id.end()) return *found->second;
  const std::string key = archive_.load_class_name();
  if (!key.empty()) return record_of(exported_serializer(key));
  if (own.serializer().is_polymorphic()) fail(archive_exception::unregistered_class);
  return record_of(own.serializer());
}

zel_basic_iarchive::object_record& zel_basic_iarchive::make(const zel_basic_iserializer& serializer,
                                                            const extended_type_info& wanted,
                                                            ownership owner) {
  const zel_basic_pointer_iserializer* maker = serializer.pointer_serializer();
  void* object = maker != nullptr ? maker->create() : nullptr;
  if (object == nullptr) fail(archive_exception::unregistered_class);
  if (as(wanted, object, serializer) == nullptr) {
    maker->destroy(object);
    fail(archive_exception::unregistered_cast);
  }
  object_record& record = known().records.emplace_back();
  record.object = object;
  record.serializer = &serializer;
  record.maker = maker;
  record.owner = owner;
  if (owner == ownership::shared) record.shared = maker->share(object);
  return record;
}

zel_basic_iarchive::loaded_pointer zel_basic_iarchive::load_pointer(
    const extended_type_info& wanted, const zel_basic_pointer_iserializer& own, ownership owner) {
  if (!has_class_info()) {
    object_record& made = make(own.serializer(), wanted, owner);
    made.serializer->load_object_data(archive_, made.object, 0);
    return hand_out(made, wanted, owner);
  }
  const bool is_new_class = archive_.has_info(class_info::class_id);
  require_attribute(is_new_class || archive_.has_info(class_info::class_id_reference));
  const long long id =
      archive_.load_info(is_new_class ? class_info::class_id : class_info::class_id_reference);
  if (id == kNullClassId) return {};
  class_record& record = pointed_class(id, own);
  load_description(record);
  if (record.is_tracked && archive_.has_info(class_info::object_id_reference)) {
    return hand_out(known().object(archive_.load_info(class_info::object_id_reference)), wanted,
                    owner);
  }
  object_record& made = make(*record.serializer, wanted, owner);
  if (record.is_tracked) remember(made);
  made.serializer->load_object_data(archive_, made.object, record.version);
  return hand_out(made, wanted, owner);
}

zel_basic_iarchive::loaded_pointer zel_basic_iarchive::hand_out(object_record& object,
                                                                const extended_type_info& wanted,
                                                                ownership owner) {
  void* as_wanted = as(wanted, object.object, *object.serializer);
  if (as_wanted == nullptr) fail(archive_exception::unregistered_cast);
  if (owner == ownership::caller) return {as_wanted, {}};
  const bool is_owned_elsewhere =
      object.maker == nullptr ||
      (object.owner == ownership::unique) != (owner == ownership::unique) ||
      (owner == ownership::unique && object.is_handed_out);
  if (is_owned_elsewhere) fail(archive_exception::pointer_conflict);
  object.is_handed_out = true;
  if (owner == ownership::shared && !object.shared)
    object.shared = object.maker->share(object.object);
  return {as_wanted, object.shared};
}

}  // namespace zel::archive
