// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <libxml/tree.h>

namespace platform::xml {

/// The node after this one in document order, attributes apart; null after the tree's last.
inline xmlNode* NextNode(xmlNode* node) noexcept {
  if (node->type == XML_ELEMENT_NODE && node->children != nullptr) return node->children;
  while (node != nullptr && node->next == nullptr) node = node->parent;
  return node == nullptr ? nullptr : node->next;
}

}  // namespace platform::xml
