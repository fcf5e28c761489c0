// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>

namespace zel::archive {

/// The smart pointers that are written like plain ones: as the object they hold. Reading a
/// std::shared_ptr restores who shares the object; a std::unique_ptr must be its object's only
/// owner.
template <class T>
struct smart_pointer {
  static constexpr bool is_one = false;
};

template <class T>
struct smart_pointer<std::shared_ptr<T>> {
  static constexpr bool is_one = true;
  static constexpr bool is_shared = true;
};

template <class T>
struct smart_pointer<std::unique_ptr<T>> {
  static constexpr bool is_one = true;
  static constexpr bool is_shared = false;
};

}  // namespace zel::archive
