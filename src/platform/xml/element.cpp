// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/element.h"

#include <libxml/tree.h>

#include <climits>
#include <new>

#include "platform/xml/names.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

std::string_view View(const xmlChar* text) {
  return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

std::string Take(xmlChar* text) {
  std::string taken(View(text));
  xmlFree(text);
  return taken;
}

xmlNode* FirstElement(xmlNode* node) {
  while (node != nullptr && node->type != XML_ELEMENT_NODE) node = node->next;
  return node;
}

xmlNode* Require(xmlNode* node) {
  if (node == nullptr) throw XmlError("there is no element to change");
  return node;
}

xmlNode* Append(xmlNode* parent, xmlNode* child) {
  if (child == nullptr) throw std::bad_alloc();
  // Not xmlAddChild: that merges and frees texts; here every child is an element.
  child->parent = parent;
  child->prev = parent->last;
  (parent->last != nullptr ? parent->last->next : parent->children) = child;
  parent->last = child;
  return child;
}

/// "PREFIX:BASE" in its two parts; no prefix without a colon.
struct Name {
  explicit Name(std::string_view name) : base(name) {
    const auto colon = name.find(':');
    if (colon == name.npos) return;
    prefix = name.substr(0, colon);
    base = name.substr(colon + 1);
  }
  std::string prefix;
  std::string_view base;
};

xmlAttr* FindAttribute(const xmlNode* element, std::string_view name) {
  if (element == nullptr || element->type != XML_ELEMENT_NODE) return nullptr;
  const Name wanted(name);
  xmlAttr* each = element->properties;
  while (each != nullptr &&
         (View(each->name) != wanted.base ||
          View(each->ns == nullptr ? nullptr : each->ns->prefix) != wanted.prefix))
    each = each->next;
  return each;
}

/// The namespace a prefix stands for at that element; for no prefix the default one, or null.
xmlNs* NamespaceOf(xmlNode* element, const std::string& prefix) {
  // What has no prefix itself stands in the default one.
  const bool isDefault = element->ns == nullptr || element->ns->prefix == nullptr;
  if (prefix.empty() && isDefault) return element->ns;
  const xmlChar* wanted = prefix.empty() ? nullptr : BAD_CAST prefix.c_str();
  xmlNs* ns = xmlSearchNs(element->doc, element, wanted);
  if (ns == nullptr && wanted != nullptr)
    throw XmlError("the prefix \"" + prefix + "\" is not declared");
  return ns;
}

bool IsPlainText(const xmlNode* node) {
  return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
}

}  // namespace

std::string_view Element::BaseName() const noexcept {
  if (node_ == nullptr) return {};
  const std::string_view name = View(node_->name);
  const auto colon = name.rfind(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string Element::Text() const {
  if (node_ == nullptr || node_->children == nullptr) return {};
  if (node_->children == node_->last && IsPlainText(node_->last))
    return std::string(View(node_->last->content));
  return Take(xmlNodeGetContent(node_));
}

std::optional<std::string> Element::Attribute(const char* name) const {
  const xmlAttr* attribute = FindAttribute(node_, name);
  if (attribute == nullptr) return std::nullopt;
  return Take(xmlNodeListGetString(node_->doc, attribute->children, 1));
}

std::string Element::Attribute(const char* name, std::string_view otherwise) const {
  return Attribute(name).value_or(std::string(otherwise));
}

long Element::Line() const noexcept {
  const long line = node_ == nullptr ? 0 : xmlGetLineNo(node_);
  return line < 0 ? 0 : line;
}

Element Element::Parent() const noexcept {
  xmlNode* parent = node_ == nullptr ? nullptr : node_->parent;
  return Element(parent != nullptr && parent->type == XML_ELEMENT_NODE ? parent : nullptr);
}

Element Element::FirstChild() const noexcept {
  return Element(node_ == nullptr ? nullptr : FirstElement(node_->children));
}

Element Element::NextSibling() const noexcept {
  return Element(node_ == nullptr ? nullptr : FirstElement(node_->next));
}

Element Element::Child(std::string_view baseName) const noexcept {
  Element child = FirstChild();
  while (child && child.BaseName() != baseName) child = child.NextSibling();
  return child;
}

void Element::SetAttribute(const char* name, std::string_view value) {
  Require(node_);
  CheckName(name);
  CheckText(value);
  const Name parts(name);
  xmlNs* ns = parts.prefix.empty() ? nullptr : NamespaceOf(node_, parts.prefix);
  const xmlChar* base = BAD_CAST parts.base.data();
  if (xmlSetNsProp(node_, ns, base, BAD_CAST std::string(value).c_str()) == nullptr)
    throw std::bad_alloc();
}

void Element::SetText(std::string_view text) {
  Require(node_);
  CheckText(text);
  if (text.size() > INT_MAX / 2) throw XmlError("the text is too long");
  xmlNode* made = nullptr;
  if (!text.empty()) {
    made = xmlNewDocTextLen(node_->doc, BAD_CAST text.data(), static_cast<int>(text.size()));
    if (made == nullptr) throw std::bad_alloc();
  }
  xmlFreeNodeList(node_->children);
  node_->children = node_->last = made;
  if (made != nullptr) made->parent = node_;
}

Element Element::AppendElement(const char* name) {
  Require(node_);
  CheckName(name);
  const Name parts(name);
  xmlNs* ns = NamespaceOf(node_, parts.prefix);
  return Element(Append(node_, xmlNewDocNode(node_->doc, ns, BAD_CAST parts.base.data(), nullptr)));
}

Element Element::AppendCopy(Element source) {
  Require(node_);
  Require(source.node_);
  // This also declares at the copy what it takes of namespaces from around the source.
  return Element(Append(node_, xmlDocCopyNode(source.node_, node_->doc, 1)));
}

void Element::Remove() noexcept {
  if (node_ == nullptr) return;
  xmlUnlinkNode(node_);
  xmlFreeNode(node_);
  node_ = nullptr;
}

}  // namespace platform::xml
