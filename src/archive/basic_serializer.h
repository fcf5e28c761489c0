// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/extended_type_info.h"
#include "archive/serialization.h"

namespace zel::archive {

/// What an archive asks of a class whose objects it writes or reads, whatever the class.
class zel_basic_serializer {
 public:
  zel_basic_serializer(const zel_basic_serializer&) = delete;
  zel_basic_serializer& operator=(const zel_basic_serializer&) = delete;

  [[nodiscard]] const extended_type_info& type() const noexcept { return type_; }
  /// The version the class declares; what it is written with.
  [[nodiscard]] unsigned version() const noexcept { return version_; }
  [[nodiscard]] bool is_polymorphic() const noexcept { return is_polymorphic_; }
  [[nodiscard]] bool is_tracked() const noexcept {
    return tracking_ == tracking_type::track_always ||
           (tracking_ == tracking_type::track_selectively && through_pointers_);
  }

 protected:
  zel_basic_serializer(const extended_type_info& type, unsigned version, tracking_type tracking,
                       bool is_polymorphic) noexcept
      : type_(type), version_(version), tracking_(tracking), is_polymorphic_(is_polymorphic) {}
  ~zel_basic_serializer() = default;
  void set_through_pointers() const noexcept { through_pointers_ = true; }

 private:
  const extended_type_info& type_;
  unsigned version_;
  tracking_type tracking_;
  bool is_polymorphic_;
  mutable bool through_pointers_ = false;
};

}  // namespace zel::archive
