// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <typeinfo>

namespace zel::archive {

/// One serializable class: its run-time type and, once it is exported, its export key.
class extended_type_info {
 public:
  extended_type_info(const extended_type_info&) = delete;
  extended_type_info& operator=(const extended_type_info&) = delete;

  [[nodiscard]] const std::type_info& type() const noexcept { return type_; }
  /// Null while the class is not exported.
  [[nodiscard]] const char* key() const noexcept { return key_; }
  void set_key(const char* key) noexcept { key_ = key; }

  /// By type, not by address: two modules may each have their own object.
  [[nodiscard]] bool operator==(const extended_type_info& other) const noexcept {
    return type_ == other.type_;
  }

 protected:
  explicit extended_type_info(const std::type_info& type) noexcept : type_(type) {}
  ~extended_type_info() = default;

 private:
  const std::type_info& type_;
  const char* key_ = nullptr;
};

/// The type information of T, made on first use.
template <class T>
class extended_type_info_typeid final : public extended_type_info {
 public:
  static extended_type_info_typeid& instance() {
    static extended_type_info_typeid info;
    return info;
  }

 private:
  extended_type_info_typeid() noexcept : extended_type_info(typeid(T)) {}
};

}  // namespace zel::archive
