// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct _xmlNode;

namespace platform::xml {

/// A handle to one element of a Document; null when there is none. It owns nothing and is valid
/// while a Document over its tree lives. Texts and names are UTF-8.
class Element {
 public:
  Element() = default;
  explicit Element(_xmlNode* node) noexcept : node_(node) {}

  explicit operator bool() const noexcept { return node_ != nullptr; }
  bool operator==(const Element&) const = default;

  /// The name without its prefix.
  [[nodiscard]] std::string_view BaseName() const noexcept;
  /// The text of the element and its descendants.
  [[nodiscard]] std::string Text() const;
  /// A name without a prefix finds the attribute without a namespace.
  [[nodiscard]] std::optional<std::string> Attribute(const char* name) const;
  /// The attribute's text, or the given one when it is absent.
  [[nodiscard]] std::string Attribute(const char* name, std::string_view otherwise) const;
  /// The line of the source the element was read from, from 1; 0 when it was made here.
  [[nodiscard]] long Line() const noexcept;

  [[nodiscard]] Element Parent() const noexcept;
  [[nodiscard]] Element FirstChild() const noexcept;
  [[nodiscard]] Element NextSibling() const noexcept;
  /// The first child element of that base name, or null.
  [[nodiscard]] Element Child(std::string_view baseName) const noexcept;

  /// These throw XmlError, and change nothing, for text that XML cannot carry, for what is no XML
  /// name or has a prefix that is not declared, and on a null handle. An element without a prefix
  /// joins the default namespace where there is one.
  void SetAttribute(const char* name, std::string_view value);
  void SetText(std::string_view text);
  Element AppendElement(const char* name);
  /// A deep copy of an element, of this or another document, as the last child.
  Element AppendCopy(Element source);
  /// Takes the element out of its tree and frees it; this handle is null afterwards.
  void Remove() noexcept;

  [[nodiscard]] _xmlNode* Node() const noexcept { return node_; }

 private:
  _xmlNode* node_ = nullptr;
};

}  // namespace platform::xml
