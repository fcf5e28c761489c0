// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

using platform::xml::Document;
using platform::xml::Element;
using platform::xml::ReadLimits;
using platform::xml::TextForm;
using platform::xml::XmlError;

namespace {

std::size_t CountElements(Element element) {
  std::size_t count = 1;
  for (Element child = element.FirstChild(); child; child = child.NextSibling())
    count += CountElements(child);
  return count;
}

void Require(bool holds) {
  if (!holds) std::abort();
}

/// What was read is within the limits, and what is written of it reads as the same.
void Check(const Document& document, const ReadLimits& limits) {
  Require(CountElements(document.Root()) <= limits.elements);
  const std::string bare = document.ToText(TextForm::kBare);
  Require(Document::Parse(bare).ToText(TextForm::kBare) == bare);
  const std::string indented = document.ToText(TextForm::kIndented);
  Require(Document::Parse(indented).ToText(TextForm::kIndented) == indented);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ReadLimits limits;
  limits.elements = 50;
  limits.attributesPerElement = 8;
  std::optional<Document> document;
  try {
    document = Document::Parse({reinterpret_cast<const char*>(data), size}, limits);
  } catch (const XmlError&) {
    return 0;
  }
  Check(*document, limits);
  return 0;
}
