// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/names.h"

#include <libxml/tree.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "platform/text/utf8.h"
#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {

namespace {

bool IsForbidden(char32_t point) {
  const bool isControl = point < 0x20 && point != '\t' && point != '\n' && point != '\r';
  return isControl || point == 0xFFFE || point == 0xFFFF || point == kNoCodePoint;
}

/// Whether eight bytes are all ASCII from the blank on: most of any text, and quick to tell.
bool ArePlain(const char* bytes) {
  constexpr std::uint64_t kHigh = 0x8080808080808080;
  constexpr std::uint64_t kBlank = 0x2020202020202020;
  std::uint64_t eight = 0;
  std::memcpy(&eight, bytes, sizeof eight);
  // Without a high bit in any byte, one below the blank borrows one when the blank is taken off.
  return ((eight | (eight - kBlank)) & kHigh) == 0;
}

}  // namespace

std::size_t FirstForbidden(std::string_view text) noexcept {
  std::string_view rest = text;
  while (!rest.empty()) {
    if (rest.size() >= 8 && ArePlain(rest.data()))
      rest.remove_prefix(8);
    else if (static_cast<signed char>(rest.front()) >= ' ')
      rest.remove_prefix(1);
    else if (IsForbidden(TakeCodePoint(rest)))
      return text.size() - rest.size();
  }
  return std::string_view::npos;
}

void CheckName(std::string_view name) {
  CheckText(name);
  const std::string terminated(name);
  if (xmlValidateQName(BAD_CAST terminated.c_str(), 0) != 0)
    throw XmlError("\"" + terminated + "\" is not an XML name");
}

void CheckText(std::string_view text) {
  if (!IsXmlText(text)) throw XmlError("the text holds a character that XML cannot carry");
}

}  // namespace platform::xml
