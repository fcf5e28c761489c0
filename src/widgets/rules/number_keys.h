// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string_view>

namespace GUI {

/// A numeric entry field at the moment a key is pressed.
struct NumberEntryState {
  std::u16string_view text;
  /// Caret position in characters, from 0.
  int caret = 0;
  bool hasSelection = false;
};

/// Whether a character may be typed into a numeric field of that printf conversion letter.
[[nodiscard]] bool AcceptsNumberKey(char conversion, char16_t character,
                                    const NumberEntryState& entry) noexcept;

}  // namespace GUI
