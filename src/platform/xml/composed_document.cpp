// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/composed_document.h"

#include <libxml/tree.h>

#include "platform/xml/tree.h"

namespace platform::xml {
namespace {

xmlNode* AsNode(xmlDoc* document) { return reinterpret_cast<xmlNode*>(document); }

/// The node after this one among an element and what it holds.
xmlNode* NextWithin(xmlNode* node, const xmlNode* element) {
  if (node->type == XML_ELEMENT_NODE && node->children != nullptr) return node->children;
  while (node != element && node->next == nullptr) node = node->parent;
  return node == element ? nullptr : node->next;
}

void SetOwner(xmlNode* element, xmlDoc* owner) {
  for (xmlNode* node = element; node != nullptr; node = NextWithin(node, element)) {
    node->doc = owner;
    if (node->type != XML_ELEMENT_NODE) continue;
    for (xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
      attribute->doc = owner;
      for (xmlNode* part = attribute->children; part != nullptr; part = part->next)
        part->doc = owner;
    }
  }
}

void SetChildren(xmlNode* parent, const std::vector<xmlNode*>& children) {
  xmlNode* before = nullptr;
  parent->children = children.empty() ? nullptr : children.front();
  for (xmlNode* child : children) {
    child->parent = parent;
    child->prev = before;
    if (before != nullptr) before->next = child;
    before = child;
  }
  if (before != nullptr) before->next = nullptr;
  parent->last = before;
}

}  // namespace

ComposedDocument::ComposedDocument(Document base, const std::vector<Element>& elements)
    : base_(std::move(base)),
      root_(base_.Root().Node()),
      rootAttributes_(std::exchange(root_->properties, nullptr)) {
  Keep(AsNode(base_.Handle()));
  Keep(root_);
  std::vector<xmlNode*> lent;
  for (const Element element : elements) {
    xmlNode* node = element.Node();
    Keep(node->parent);
    lent.push_back(node);
    if (node->doc == base_.Handle()) continue;
    moved_.emplace_back(node, node->doc);
    SetOwner(node, base_.Handle());
  }
  // What lends an element holds nothing meanwhile.
  for (const auto& [parent, children] : children_) SetChildren(parent, {});
  SetChildren(AsNode(base_.Handle()), {root_});
  SetChildren(root_, lent);
}

ComposedDocument::~ComposedDocument() {
  for (const auto& [node, document] : moved_) SetOwner(node, document);
  for (const auto& [parent, children] : children_) SetChildren(parent, children);
  root_->properties = rootAttributes_;
}

void ComposedDocument::Keep(xmlNode* parent) {
  auto [place, isNew] = children_.try_emplace(parent);
  if (!isNew) return;
  for (xmlNode* child = parent->children; child != nullptr; child = child->next)
    place->second.push_back(child);
}

std::size_t CountNodes(Element element, std::size_t most) {
  std::size_t count = 0;
  for (xmlNode* node = element.Node(); node != nullptr && count < most;
       node = NextWithin(node, element.Node())) {
    ++count;
    if (node->type != XML_ELEMENT_NODE) continue;
    for (const xmlAttr* each = node->properties; each != nullptr; each = each->next) ++count;
  }
  return count < most ? count : most;
}

}  // namespace platform::xml
