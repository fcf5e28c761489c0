// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/sax_writer.h"

#include <libxml/parserInternals.h>
#include <libxml/tree.h>

#include <cstdint>
#include <cstring>
#include <new>
#include <string>

#include "platform/xml/tree_cursor.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {

namespace {

[[noreturn]] void Fail(std::string_view what, std::string_view name) {
  throw XmlError(std::string(what) + " \"" + std::string(name) + '"');
}

/// The longest text libxml2 reads back.
constexpr std::size_t kLongestText = 10'000'000;

void RequireXmlText(std::string_view text) {
  if (!SaxWriter::CanCarry(text)) throw XmlError("text that XML cannot carry");
}

void* Allocate(std::size_t bytes) {
  void* memory = xmlMalloc(bytes);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

xmlNode* NewNode(xmlDoc* document, xmlElementType type, const xmlChar* name) {
  auto* node = static_cast<xmlNode*>(Allocate(sizeof(xmlNode)));
  std::memset(node, 0, sizeof(xmlNode));
  node->type = type;
  node->name = name;
  node->doc = document;
  return node;
}

void LinkLast(xmlNode* parent, xmlNode* node) noexcept {
  node->parent = parent;
  node->prev = parent->last;
  (parent->last != nullptr ? parent->last->next : parent->children) = node;
  parent->last = node;
}

/// Short texts stand inside the node, where the parser puts them too; freeing knows that.
xmlChar* TextPlace(xmlNode* node, std::size_t bytes) {
  constexpr std::size_t kInside = sizeof(node->properties) + sizeof(node->nsDef);
  if (bytes < kInside) return reinterpret_cast<xmlChar*>(&node->properties);
  return static_cast<xmlChar*>(Allocate(bytes + 1));
}

}  // namespace

SaxWriter::SaxWriter(Document target) : target_(std::move(target)) {}

bool SaxWriter::CanCarry(std::string_view text) noexcept {
  return text.size() <= kLongestText && IsXmlText(text);
}

std::string SaxWriter::OpenPath() const { return cursor::Path(open_); }

void SaxWriter::StartDocument() {
  xmlDoc* document = target_.Handle();
  if (xmlDocGetRootElement(document) != nullptr) {
    throw XmlError("the document already has a document element");
  }
  if (document->dict == nullptr) document->dict = xmlDictCreate();
  if (document->dict == nullptr) throw std::bad_alloc();
}

void SaxWriter::EndDocument() {
  if (open_ != nullptr) {
    Fail("the document ends inside element", reinterpret_cast<const char*>(open_->name));
  }
}

const unsigned char* SaxWriter::Intern(std::string_view name) {
  KnownName& known = known_[(reinterpret_cast<std::uintptr_t>(name.data()) >> 2) % known_.size()];
  if (known.address == name.data() &&
      std::strncmp(reinterpret_cast<const char*>(known.interned), name.data(), name.size()) == 0 &&
      known.interned[name.size()] == 0) {
    return known.interned;
  }
  const std::string text(name);
  if (xmlValidateNCName(reinterpret_cast<const xmlChar*>(text.c_str()), 0) != 0) {
    Fail("not an element name:", name);
  }
  const xmlChar* interned =
      xmlDictLookup(target_.Handle()->dict, reinterpret_cast<const xmlChar*>(text.c_str()),
                    static_cast<int>(text.size()));
  if (interned == nullptr) throw std::bad_alloc();
  known = {name.data(), interned};
  return interned;
}

_xmlNode* SaxWriter::OpenElement(std::string_view name) {
  xmlDoc* document = target_.Handle();
  xmlNode* parent = open_;
  if (parent == nullptr) {
    if (xmlDocGetRootElement(document) != nullptr) Fail("a second document element", name);
    parent = reinterpret_cast<xmlNode*>(document);
  }
  xmlNode* element = NewNode(document, XML_ELEMENT_NODE, Intern(name));
  LinkLast(parent, element);
  return element;
}

void SaxWriter::StartElement(std::string_view name, std::span<const SaxAttribute> attributes) {
  for (const SaxAttribute& attribute : attributes) RequireXmlText(attribute.value);
  _xmlNode* element = OpenElement(name);
  open_ = element;
  for (const SaxAttribute& attribute : attributes) {
    Element(element).SetAttribute(std::string(attribute.name).c_str(), attribute.value);
  }
}

void SaxWriter::EndElement(std::string_view name) {
  if (open_ == nullptr || name != reinterpret_cast<const char*>(open_->name)) {
    Fail("the end of an element that is not open:", name);
  }
  xmlNode* parent = open_->parent;
  open_ = parent->type == XML_ELEMENT_NODE ? parent : nullptr;
}

void SaxWriter::AppendText(_xmlNode* element, std::string_view text) {
  xmlNode* node = NewNode(element->doc, XML_TEXT_NODE, xmlStringText);
  node->content = TextPlace(node, text.size());
  std::memcpy(node->content, text.data(), text.size());
  node->content[text.size()] = 0;
  LinkLast(element, node);
}

void SaxWriter::Characters(std::string_view text) {
  RequireXmlText(text);
  if (text.empty()) return;
  if (open_ == nullptr) throw XmlError("text outside the document element");
  if (open_->last == nullptr || open_->last->type != XML_TEXT_NODE) {
    AppendText(open_, text);
  } else if (xmlTextConcat(open_->last, reinterpret_cast<const xmlChar*>(text.data()),
                           static_cast<int>(text.size())) != 0) {
    throw std::bad_alloc();
  }
}

void SaxWriter::TextElement(std::string_view name, std::string_view text) {
  RequireXmlText(text);
  _xmlNode* element = OpenElement(name);
  if (!text.empty()) AppendText(element, text);
}

void SaxWriter::StartDtd(std::string_view name) {
  xmlDoc* document = target_.Handle();
  const std::string text(name);
  if (open_ != nullptr || xmlDocGetRootElement(document) != nullptr ||
      xmlCreateIntSubset(document, reinterpret_cast<const xmlChar*>(text.c_str()), nullptr,
                         nullptr) == nullptr) {
    Fail("no place for a document type declaration", name);
  }
}

void SaxWriter::EndDtd() {}

void SaxWriter::Comment(std::string_view text) {
  RequireXmlText(text);
  if (text.find("--") != std::string_view::npos || text.ends_with('-')) {
    throw XmlError("a comment that XML cannot carry");
  }
  const std::string copy(text);
  xmlNode* node =
      xmlNewDocComment(target_.Handle(), reinterpret_cast<const xmlChar*>(copy.c_str()));
  if (node == nullptr) throw std::bad_alloc();
  LinkLast(open_ != nullptr ? open_ : reinterpret_cast<xmlNode*>(target_.Handle()), node);
}

}  // namespace platform::xml
