// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/xml/element.h"

struct _xmlDoc;

namespace platform::xml {

/// Bounds on what is read. A document past one of them is refused with its own message. They are
/// some four times what the largest lamp waveform database takes (120,000 pulses).
struct ReadLimits {
  std::size_t bytes = 128u << 20;
  /// Elements, attributes, comments and instructions together; each takes some 250 bytes.
  std::size_t elements = 5'000'000;
  std::size_t attributesPerElement = 256;
};

enum class TextForm { kIndented, kBare };

/// An XML document: a counted reference, copies share one tree.
class Document {
 public:
  /// A document without a document element.
  Document();

  /// Reads a document from bytes in UTF-8, or in Windows-1252 where its declaration says that or
  /// ISO-8859-1. Nothing outside the bytes is ever opened, a document type declaration is refused,
  /// and so is what exceeds the limits or a depth of 256. White space between elements is kept.
  /// Throws XmlError "LINE: MESSAGE" where the fault has a line.
  static Document Parse(std::string_view bytes, const ReadLimits& limits = {});

  /// The document element, or null.
  [[nodiscard]] Element Root() const noexcept;
  /// Makes a document element; the document must have none.
  Element CreateRoot(const char* name);
  /// Makes a deep copy of an element, of any document, the document element; there must be none.
  Element SetRootCopy(Element source);
  /// A deep copy with a tree of its own.
  [[nodiscard]] Document Clone() const;
  /// The document as UTF-8 text. Indented: an XML declaration, two blanks a level, a line end at
  /// the end; white space that stands between elements already is kept in place of ours, and what
  /// holds text beside elements is written as it is. Bare: no declaration and no white space of
  /// our own.
  [[nodiscard]] std::string ToText(TextForm form) const;

  [[nodiscard]] _xmlDoc* Handle() const noexcept { return tree_.get(); }
  static Document Adopt(_xmlDoc* tree);

 private:
  explicit Document(std::shared_ptr<_xmlDoc> tree) noexcept : tree_(std::move(tree)) {}
  std::shared_ptr<_xmlDoc> tree_;
};

/// One element and what it holds as UTF-8 text, without a declaration.
[[nodiscard]] std::string ToText(Element element, TextForm form);

/// True when XML 1.0 can carry the text: valid UTF-8 without the characters it forbids.
[[nodiscard]] bool IsXmlText(std::string_view text) noexcept;

}  // namespace platform::xml
