// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>

#include "archive/nvp.h"

namespace zel::archive {

/// Carries a fixed array as a collection with a counter of type Count: writing writes all
/// entries; reading takes a count below 0 or above Capacity as Capacity, reads that many and
/// leaves the others as they are. The array is the caller's:
///
///     SerializeArray<bool, short, 8> wrapped(allowed);
///     ar & nvp("Allowed", wrapped);
template <class T, class Count, Count Capacity>
class SerializeArray {
 public:
  static constexpr unsigned class_version = 0;

  explicit SerializeArray(T (&items)[Capacity]) noexcept : items_(items) {}
  explicit SerializeArray(std::array<T, Capacity>& items) noexcept : items_(items.data()) {}

  template <class Archive>
  void serialize(Archive& archive, unsigned) {
    Count count = Archive::is_saving ? Capacity : Count{};
    archive& nvp("count", count);
    if (count < 0 || count > Capacity) count = Capacity;
    for (Count i = 0; i < count; ++i) archive& nvp("item", items_[i]);
  }

 private:
  T* items_;
};

}  // namespace zel::archive
