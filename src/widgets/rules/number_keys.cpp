// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/number_keys.h"

namespace GUI {

namespace {

bool BelongsTo(char conversion, char16_t character) {
  const bool digit = character >= u'0' && character <= u'9';
  switch (conversion) {
    case 'd':
    case 'i':
      return digit || character == u'-';
    case 'f':
      return digit || character == u'.' || character == u'-';
    case 'e':
      return digit || character == u'.' || character == u'-' || character == u'+';
    case 'o':
      return digit && character < u'8';
    case 'x':
    case 'X':
      return true;
    default:
      return digit;
  }
}

}  // namespace

bool AcceptsNumberKey(char conversion, char16_t character, const NumberEntryState& entry) noexcept {
  if (!BelongsTo(conversion, character)) return false;
  if (character != u'.' && character != u'-') return true;
  if (entry.text.find(character) != std::u16string_view::npos) return false;
  return character == u'.' || (entry.caret == 0 && !entry.hasSelection);
}

}  // namespace GUI
