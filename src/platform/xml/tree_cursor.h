// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

struct _xmlDoc;
struct _xmlNode;

/// Steps through a tree without an allocation, for readers that visit every element once. The
/// handles are valid as long as the document, and as long as nobody changes it.
namespace platform::xml::cursor {

/// The document element, or null.
[[nodiscard]] _xmlNode* Root(_xmlDoc* document) noexcept;

/// What a search came to: the child or null, whether it was looked for again from the first
/// child, and how many children were looked at.
struct Found {
  _xmlNode* child = nullptr;
  bool wrapped = false;
  std::size_t steps = 0;
};

/// The next child element of that base name behind `last`, else the first one before it; `last`
/// itself is not looked at. With a null `last` all children, from the first.
[[nodiscard]] Found FindChild(_xmlNode* parent, _xmlNode* last, const char* name) noexcept;

[[nodiscard]] bool HasBaseName(const _xmlNode* element, const char* name) noexcept;
/// How many child elements there are, counted no further than `most`.
[[nodiscard]] std::size_t CountChildren(const _xmlNode* parent, std::size_t most) noexcept;

/// How much a tree holds, its root among it.
struct Extent {
  std::size_t elements = 0;
  std::size_t textBytes = 0;
};
[[nodiscard]] Extent ExtentOf(const _xmlNode* root) noexcept;

/// The text of the element and its descendants; it stands in the tree or, when it is in pieces,
/// in `scratch`.
[[nodiscard]] std::string_view Text(const _xmlNode* element, std::string& scratch);

/// The names from the document element down to this one, with '/' between them.
[[nodiscard]] std::string Path(const _xmlNode* element);

}  // namespace platform::xml::cursor
