// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lamp_optics {

/// Bytes that a lamp's or an optics description's name may have.
inline constexpr std::size_t kMaxNameBytes = 255;

/// The UTF-8 name, or as much of it as has room without a character cut in two.
[[nodiscard]] constexpr std::string_view CutName(std::string_view name) noexcept {
  if (name.size() <= kMaxNameBytes) return name;
  std::size_t end = kMaxNameBytes;
  while (end > 0 && (name[end] & 0xC0) == 0x80) --end;
  return name.substr(0, end);
}

/// Takes the characters out of the name that XML, and so the database, cannot carry. True when
/// there were any.
bool DropUnstorable(std::string& name);

}  // namespace lamp_optics
