// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/tree_cursor.h"

#include <libxml/tree.h>

#include <cstring>

namespace platform::xml::cursor {

namespace {

const char* Chars(const xmlChar* text) noexcept { return reinterpret_cast<const char*>(text); }

/// A child element of the wanted name from `from` on, `end` excluded.
xmlNode* Search(xmlNode* from, const xmlNode* end, const char* name, std::size_t& steps) noexcept {
  for (xmlNode* node = from; node != end; node = node->next) {
    ++steps;
    if (node->type == XML_ELEMENT_NODE && HasBaseName(node, name)) return node;
  }
  return nullptr;
}

bool HoldsText(const xmlNode* node) noexcept {
  return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
}

/// The node behind this one in document order, within `top`.
const xmlNode* Next(const xmlNode* node, const xmlNode* top) noexcept {
  if (node->type == XML_ELEMENT_NODE && node->children != nullptr) return node->children;
  while (node != top && node->next == nullptr) node = node->parent;
  return node == top ? nullptr : node->next;
}

}  // namespace

_xmlNode* Root(_xmlDoc* document) noexcept { return xmlDocGetRootElement(document); }

bool HasBaseName(const _xmlNode* element, const char* name) noexcept {
  return std::strcmp(Chars(element->name), name) == 0;
}

Found FindChild(_xmlNode* parent, _xmlNode* last, const char* name) noexcept {
  Found found;
  xmlNode* first = parent->children;
  found.child = Search(last != nullptr ? last->next : first, nullptr, name, found.steps);
  if (found.child == nullptr && last != nullptr) {
    found.wrapped = true;
    found.child = Search(first, last, name, found.steps);
  }
  return found;
}

std::size_t CountChildren(const _xmlNode* parent, std::size_t most) noexcept {
  std::size_t count = 0;
  for (const xmlNode* node = parent->children; node != nullptr && count < most; node = node->next) {
    if (node->type == XML_ELEMENT_NODE) ++count;
  }
  return count;
}

Extent ExtentOf(const _xmlNode* root) noexcept {
  Extent extent;
  for (const xmlNode* node = root; node != nullptr; node = Next(node, root)) {
    if (node->type == XML_ELEMENT_NODE) ++extent.elements;
    if (HoldsText(node) && node->content != nullptr) {
      extent.textBytes += std::strlen(Chars(node->content));
    }
  }
  return extent;
}

std::string_view Text(const _xmlNode* element, std::string& scratch) {
  const xmlNode* only = element->children;
  if (only == nullptr) return {};
  if (only->next == nullptr && HoldsText(only)) {
    return only->content != nullptr ? Chars(only->content) : std::string_view();
  }
  scratch.clear();
  for (const xmlNode* node = element; node != nullptr; node = Next(node, element)) {
    if (HoldsText(node) && node->content != nullptr) scratch += Chars(node->content);
  }
  return scratch;
}

std::string Path(const _xmlNode* element) {
  std::string path;
  for (const xmlNode* node = element; node != nullptr && node->type == XML_ELEMENT_NODE;
       node = node->parent) {
    path.insert(0, path.empty() ? Chars(node->name) : std::string(Chars(node->name)) + '/');
  }
  return path;
}

}  // namespace platform::xml::cursor
