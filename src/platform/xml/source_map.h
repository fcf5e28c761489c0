// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace platform::xml {

/// Where an element stands in the bytes it was read from.
struct SourceElement {
  std::size_t begin = 0;         ///< its '<'
  std::size_t contentBegin = 0;  ///< behind its start tag
  std::size_t contentEnd = 0;    ///< the '<' of its end tag; contentBegin for an empty-element tag
  std::size_t end = 0;           ///< behind its last byte
  std::vector<SourceElement> children;

  [[nodiscard]] bool EmptyTag() const noexcept { return contentEnd == end; }
};

/// Finds the first element at or behind `from` and, down to `depth` levels below it, its child
/// elements. The bytes are UTF-8 and well formed (they were parsed before) and hold no document
/// type declaration.
[[nodiscard]] SourceElement MapSource(std::string_view bytes, std::size_t from, int depth);

/// Whether the bytes of a document are UTF-8 by their mark and their XML declaration.
[[nodiscard]] bool IsUtf8Source(std::string_view bytes);

}  // namespace platform::xml
