// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

namespace zel::archive {

/// Makes a string class of another library a text of the archives: a specialization has
/// `static std::string to_utf8(const T&)` and `static T from_utf8(std::string_view)`.
template <class T>
struct text_type;

template <class T>
concept is_text_type_impl = requires(const T& text) {
  {text_type<T>::to_utf8(text)};
};

template <class T>
inline constexpr bool is_text_type = is_text_type_impl<T>;

}  // namespace zel::archive
