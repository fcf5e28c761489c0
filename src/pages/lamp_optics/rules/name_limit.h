// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lamp_optics {

/// Characters (code points) that a lamp's or an optics description's name may have.
inline constexpr std::size_t kMaxNameCharacters = 255;

/// How many characters a UTF-8 text has.
[[nodiscard]] std::size_t CharacterCount(std::string_view text) noexcept;

/// The UTF-8 name, or its first kMaxNameCharacters.
[[nodiscard]] std::string_view CutName(std::string_view name) noexcept;

/// Takes the characters out of the name that XML, and so the database, cannot carry. True when
/// there were any.
bool DropUnstorable(std::string& name);

}  // namespace lamp_optics
