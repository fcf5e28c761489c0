// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "platform/xml/document.h"

struct _xmlAttr;

namespace platform::xml {

/// Elements of several documents under one document element, for as long as this lives: they are
/// lent, not copied, and stand in their own places again afterwards. Until then nothing of those
/// documents may be changed, nor anything but these elements be read.
class ComposedDocument {
 public:
  /// The elements become, in this order, all that the document element of `base` holds; one that is
  /// in the base already costs nothing, others a walk over what they hold. An element stands once
  /// among them, and in no other one. `base` has a document element.
  ComposedDocument(Document base, const std::vector<Element>& elements);
  ~ComposedDocument();
  ComposedDocument(const ComposedDocument&) = delete;
  ComposedDocument& operator=(const ComposedDocument&) = delete;

  [[nodiscard]] const Document& Get() const noexcept { return base_; }

 private:
  void Keep(_xmlNode* parent);

  Document base_;
  _xmlNode* root_;
  _xmlAttr* rootAttributes_;
  std::map<_xmlNode*, std::vector<_xmlNode*>> children_;  ///< of each parent, as they were
  std::vector<std::pair<_xmlNode*, _xmlDoc*>> moved_;     ///< and the document each came from
};

/// How many nodes an element holds, itself and attributes included; at most `most`.
[[nodiscard]] std::size_t CountNodes(Element element, std::size_t most);

}  // namespace platform::xml
