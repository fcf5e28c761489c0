// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "archive/basic_archive.h"
#include "archive/collections.h"
#include "archive/export_registry.h"
#include "archive/number_text.h"
#include "archive/nvp.h"
#include "archive/oserializer.h"
#include "archive/smart_pointer.h"
#include "archive/text_type.h"
#include "platform/xml/document.h"
#include "platform/xml/sax_writer.h"

namespace zel::archive {

/// Writes data objects into a document, each named value as one element:
///
///     xml_oarchive ar(document, flags::kPageTransfer);
///     ar << nvp("ModuleOutputs", data);
///     ar.Finish();
///
/// Class types are written by their `serialize`, collections as "count" and one "item" an entry,
/// null pointers as class id -1 or, without class information, not at all. It throws
/// xml_archive_exception and boost::archive::archive_exception; a fault of the tree itself is the
/// platform's XmlError. What was written before a fault stays in the document.
///
/// One archive stores one top-level value and is used by one thread. Names and attribute names
/// are literals, or live as long as the element is open.
class xml_oarchive final : public zel_basic_oarchive {
 public:
  static constexpr bool is_loading = false;
  static constexpr bool is_saving = true;

  /// The document has no document element yet; it receives the root element the flags ask for.
  xml_oarchive(platform::xml::Document target, std::uint32_t flags);
  /// Finishes the document unless Finish did; a fault is then not reported.
  ~xml_oarchive();

  /// Closes the root element and ends the document. Nothing is written afterwards.
  void Finish();

  template <class T>
  xml_oarchive& operator<<(const name_value_pair<T>& pair) {
    save(pair.name, *pair.value);
    return *this;
  }
  template <class T>
  xml_oarchive& operator&(const name_value_pair<T>& pair) {
    return *this << pair;
  }

  /// Opens the element of a named value; a null name opens none.
  void save_start(const char* name);
  /// Closes it again; the name is the one it was opened with.
  void save_end(const char* name);
  /// Text of the open element.
  void save_text(std::string_view text);

  /// A number or text as an attribute of the element opened last, instead of as text. Before the
  /// first element is opened it is the root element's or, without a root, the first element's.
  template <class T>
  void save_attribute(const char* name, const T& value) {
    attribute_value_name_ = name;
    save(nullptr, value);
    attribute_value_name_ = nullptr;
  }
  /// Class information as an attribute; nothing when the flags say there is none.
  void save_info(class_info info, long long value);
  void save_class_name(const char* key);

 private:
  friend class zel_basic_oarchive;

  template <class T>
  void save(const char* name, T& value) {
    using Plain = std::remove_const_t<T>;
    if constexpr (std::is_same_v<Plain, std::string>) {
      save_leaf(name, value);
    } else if constexpr (std::is_arithmetic_v<Plain> || std::is_enum_v<Plain>) {
      save_number(name, value);
    } else if constexpr (is_text_type<Plain>) {
      save_leaf(name, text_type<Plain>::to_utf8(value));
    } else if constexpr (std::is_pointer_v<Plain>) {
      save_pointer_value(name, value);
    } else if constexpr (smart_pointer<Plain>::is_one) {
      save_pointer_value(name, value.get());
    } else {
      save_start(name);
      save_object(const_cast<Plain&>(value));
      save_end(name);
    }
  }

  template <class T>
  void save_number(const char* name, T value) {
    static_assert(!std::is_same_v<T, float> && !std::is_same_v<T, long double>,
                  "Of the floating-point types the archives write double alone.");
    number_buffer buffer;
    if constexpr (std::is_enum_v<T>) {
      save_number(name, static_cast<std::underlying_type_t<T>>(value));
    } else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, double>) {
      save_leaf(name, format(value, buffer));
    } else if constexpr (std::is_signed_v<T>) {
      save_leaf(name, format(static_cast<long long>(value), buffer));
    } else {
      save_leaf(name, format(static_cast<unsigned long long>(value), buffer));
    }
  }

  template <class T>
  void save_object(T& object) {
    if constexpr (std::is_array_v<T>) {
      serialization<T>::save(*this, object, 0);
    } else if (has_class_info()) {
      save_described_object(&object, zel_oserializer<xml_oarchive, T>::instance());
    } else {
      serialization<T>::save(*this, object, serialization<T>::version);
    }
  }

  template <class T>
  void save_pointer_value(const char* name, T* pointer) {
    using Plain = std::remove_const_t<T>;
    static_assert(std::is_class_v<Plain>, "Only objects of classes are serialized by pointer.");
    if (pointer == nullptr && !has_class_info()) return;
    save_start(name);
    const zel_basic_pointer_oserializer* serializer =
        &zel_pointer_oserializer<xml_oarchive, Plain>::at_load;
    const void* object = pointer;
    if constexpr (std::is_polymorphic_v<Plain>) {
      if (pointer != nullptr && typeid(*pointer) != typeid(Plain)) {
        serializer = &pointer_oserializer_of(typeid(*pointer));
        object = dynamic_cast<const void*>(pointer);
      }
    }
    save_pointer(object, *serializer);
    save_end(name);
  }

  /// An element with text in it, or just text with a null name.
  void save_leaf(const char* name, std::string_view text);
  void save_first_leaf(const char* name, std::string_view text);
  void flush();
  void drop_attributes() noexcept;
  [[nodiscard]] const zel_basic_pointer_oserializer& pointer_oserializer_of(
      const std::type_info& type) const;
  [[noreturn]] void refuse_text(const char* name, std::string_view text) const;

  struct attribute {
    std::string name;
    std::string value;
  };

  platform::xml::SaxWriter writer_;
  platform::xml::ContentHandler& content_ = writer_;
  platform::xml::LexicalHandler& lexical_ = writer_;
  const char* pending_name_ = nullptr;
  std::vector<attribute> pending_attributes_;
  bool keep_attributes_ = true;
  const char* attribute_value_name_ = nullptr;
  const char* root_ = nullptr;
  int depth_ = 0;
  bool finished_ = false;
};

}  // namespace zel::archive
