// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string_view>

namespace platform::xml {

/// Where the first character stands that XML cannot carry, or bytes that are not UTF-8; npos
/// without one.
[[nodiscard]] std::size_t FirstForbidden(std::string_view text) noexcept;
/// Throws XmlError for a text that is no XML name, a prefix included.
void CheckName(std::string_view name);
/// Throws XmlError for a text that XML cannot carry.
void CheckText(std::string_view text);

}  // namespace platform::xml
