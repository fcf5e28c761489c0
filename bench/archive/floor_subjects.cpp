// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <string>
#include <vector>

#include "archive/xml_oarchive.h"
#include "measure.h"
#include "platform/xml/document.h"
#include "platform/xml/sax_writer.h"
#include "subjects.h"

namespace bench {

namespace {

using platform::xml::Document;
using Tree = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

Document StoredTree(Waveforms& data) {
  Document document;
  zel::archive::xml_oarchive archive(document, zel::archive::flags::kPageTransfer);
  archive << zel::archive::nvp(kElement, data);
  archive.Finish();
  return document;
}

/// One event of a document that is told again: an element with text, a start or an end.
struct Event {
  enum Kind { kText, kStart, kEnd } kind;
  const char* name;
  std::string text;
};

void Tell(xmlNode* element, std::vector<Event>& events) {
  const auto* name = reinterpret_cast<const char*>(element->name);
  const xmlNode* child = element->children;
  if (child == nullptr || child->type == XML_TEXT_NODE) {
    const xmlChar* text = child != nullptr ? child->content : BAD_CAST "";
    events.push_back({Event::kText, name, reinterpret_cast<const char*>(text)});
    return;
  }
  events.push_back({Event::kStart, name, {}});
  for (xmlNode* each = element->children; each != nullptr; each = each->next) Tell(each, events);
  events.push_back({Event::kEnd, name, {}});
}

Document Build(const std::vector<Event>& events) {
  Document document;
  platform::xml::SaxWriter writer(document);
  writer.StartDocument();
  for (const Event& event : events) {
    if (event.kind == Event::kText) writer.TextElement(event.name, event.text);
    if (event.kind == Event::kStart) writer.StartElement(event.name, {});
    if (event.kind == Event::kEnd) writer.EndElement(event.name);
  }
  writer.EndDocument();
  return document;
}

Tree Parse(const std::string& text) {
  return {xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                        XML_PARSE_NONET | XML_PARSE_BIG_LINES),
          xmlFreeDoc};
}

}  // namespace

void RegisterFloors() {
  Register("tree build alone", [](benchmark::State& state) {
    Waveforms data = DataOf(state);
    const Document source = StoredTree(data);
    std::vector<Event> events;
    Tell(xmlDocGetRootElement(source.Handle()), events);
    Measure(state, [&] { return Build(events); });
  });
  RegisterLoad(
      "libxml2 parse alone",
      [](Waveforms& data) {
        return FromChild([&] { return StoredTree(data).ToText(platform::xml::TextForm::kBare); });
      },
      [](const std::string& text) { return Parse(text); });
}

}  // namespace bench
