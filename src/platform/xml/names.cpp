// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/names.h"

#include <libxml/tree.h>

#include <string>

#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {

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
