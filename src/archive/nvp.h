// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace zel::archive {

/// A member and the element name it is stored under. The name is a literal and outlives the pair.
template <class T>
struct name_value_pair {
  const char* name;
  T* value;
};

template <class T>
[[nodiscard]] constexpr name_value_pair<T> nvp(const char* name, T& value) noexcept {
  return {name, &value};
}

}  // namespace zel::archive
