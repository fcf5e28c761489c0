// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "archive/basic_archive.h"
#include "archive/collections.h"
#include "archive/iserializer.h"
#include "archive/number_text.h"
#include "archive/nvp.h"
#include "archive/smart_pointer.h"
#include "archive/text_type.h"
#include "platform/xml/document.h"

namespace zel::archive {

/// Reads data objects from the document an xml_oarchive with the same flags has written:
///
///     xml_iarchive ar(document, flags::kPageTransfer);
///     ar >> nvp("Inputs", data);
///
/// A named value is the next child element of that base name behind the one read last, else the
/// first one before it; so members are found in any order, and equal names in document order. An
/// element that is missing leaves its value as it was, or throws where the flags do not tolerate
/// that. It throws xml_archive_exception and boost::archive::archive_exception; what was read
/// before the fault stays changed.
///
/// One archive reads one top-level value, in one thread; nobody changes the document meanwhile.
class xml_iarchive final : public zel_basic_iarchive {
 public:
  static constexpr bool is_loading = true;
  static constexpr bool is_saving = false;

  /// Finds the root element unless the flags say there is none.
  xml_iarchive(platform::xml::Document source, std::uint32_t flags);
  ~xml_iarchive();

  /// What the root's "version" attribute says, else 1.
  [[nodiscard]] unsigned library_version() const noexcept { return library_version_; }

  template <class T>
  xml_iarchive& operator>>(const name_value_pair<T>& pair) {
    load(pair.name, *pair.value);
    return *this;
  }
  template <class T>
  xml_iarchive& operator&(const name_value_pair<T>& pair) {
    return *this >> pair;
  }

  /// Opens the element of a named value; a null name opens none.
  void load_start(const char* name);
  /// Closes it again; the name is the one it was opened with.
  void load_end(const char* name);
  /// False when the open element is missing from the document.
  [[nodiscard]] bool has_element() const noexcept;
  /// The text of the open element and its descendants, empty when that is missing. It is valid
  /// until the next call.
  [[nodiscard]] std::string_view text();

  /// A collection's "count"; 0 when there is none. A number of entries far beyond what the
  /// document has elements for throws "can't convert text to data".
  [[nodiscard]] std::size_t load_count();
  /// For a set that already has the entry just read. Without class information that is no fault.
  void refuse_repeated_entry() const;

  /// Class information from an attribute of the open element: 0 or empty when the flags say there
  /// is none, or the element or the attribute is missing. A missing version throws "missing
  /// attribute".
  [[nodiscard]] long long load_info(class_info info);
  [[nodiscard]] std::string load_class_name();
  [[nodiscard]] bool has_info(class_info info) const;

 private:
  friend class zel_basic_iarchive;

  struct frame {
    _xmlNode* element;       // null when it is missing
    _xmlNode* last_matched;  // the child matched last, null before the first
  };

  template <class T>
  void load(const char* name, T& value) {
    static_assert(!std::is_const_v<T>, "A constant cannot be read.");
    if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_same_v<T, std::string> ||
                  is_text_type<T>) {
      load_leaf(name, value);
    } else {
      load_start(name);
      if (has_element()) load_content(value);
      load_end(name);
    }
  }

  template <class T>
  void load_leaf(const char* name, T& value) {
    if (_xmlNode* element = name != nullptr ? enter(name) : current()) convert(element, value);
  }

  template <class T>
  void load_content(T& value) {
    if constexpr (std::is_pointer_v<T>) {
      value = load_as<std::remove_pointer_t<T>>(ownership::caller).first;
    } else if constexpr (smart_pointer<T>::is_one) {
      load_smart_pointer(value);
    } else if constexpr (std::is_array_v<T>) {
      serialization<T>::load(*this, value, 0);
    } else if (has_class_info()) {
      load_described_object(&value, zel_iserializer<xml_iarchive, T>::instance());
    } else {
      serialization<T>::load(*this, value, 0);
    }
  }

  template <class T>
  std::pair<T*, std::shared_ptr<void>> load_as(ownership owner) {
    static_assert(std::is_class_v<T>, "Only objects of classes are serialized by pointer.");
    loaded_pointer loaded = load_pointer(extended_type_info_typeid<T>::instance(),
                                         zel_pointer_iserializer<xml_iarchive, T>::at_load, owner);
    return {static_cast<T*>(loaded.object), std::move(loaded.shared)};
  }

  template <class Pointer>
  void load_smart_pointer(Pointer& pointer) {
    using T = typename Pointer::element_type;
    static_assert(!std::is_polymorphic_v<T> || std::has_virtual_destructor_v<T>,
                  "A smart pointer to a polymorphic class needs its virtual destructor.");
    if constexpr (smart_pointer<Pointer>::is_shared) {
      auto [object, shared] = load_as<T>(ownership::shared);
      pointer = Pointer(std::move(shared), object);
    } else {
      pointer.reset(load_as<T>(ownership::unique).first);
    }
  }

  template <class T>
  void convert(_xmlNode* element, T& value) {
    static_assert(!std::is_same_v<T, float> && !std::is_same_v<T, long double>,
                  "Of the floating-point types the archives read double alone.");
    const std::string_view text = text_of(element);
    if constexpr (std::is_same_v<T, std::string>) {
      value.assign(text);
    } else if constexpr (is_text_type<T>) {
      value = text_type<T>::from_utf8(text);
    } else if constexpr (std::is_enum_v<T>) {
      value = static_cast<T>(number<std::underlying_type_t<T>>(element, text));
    } else {
      value = number<T>(element, text);
    }
  }

  template <class T>
  T number(_xmlNode* element, std::string_view text) {
    using Wide =
        std::conditional_t<std::is_same_v<T, bool> || std::is_same_v<T, double>, T,
                           std::conditional_t<std::is_signed_v<T>, long long, unsigned long long>>;
    Wide wide{};
    if (!parse(text, wide)) refuse_text(element, text);
    if constexpr (sizeof(T) < sizeof(Wide)) {
      if (wide < std::numeric_limits<T>::min() || wide > std::numeric_limits<T>::max()) {
        refuse_text(element, text);
      }
    }
    return static_cast<T>(wide);
  }

  /// The element of a named value, which is then the one matched last; null when it is missing.
  _xmlNode* enter(const char* name);
  _xmlNode* enter_document(const char* name);
  _xmlNode* missing(const char* name) const;
  [[nodiscard]] _xmlNode* current() const;
  void push(_xmlNode* element);
  void find_root();
  void borrow(unsigned long long entries);
  [[nodiscard]] std::string_view text_of(_xmlNode* element);
  [[noreturn]] void refuse_text(_xmlNode* element, std::string_view text) const;

  platform::xml::Document source_;
  std::vector<frame> stack_;
  unsigned library_version_ = 1;
  std::string scratch_;
  std::size_t steps_ = 0;  // what was looked at so far, bounded by the next
  std::size_t most_steps_ = std::numeric_limits<std::size_t>::max();
};

}  // namespace zel::archive
