// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "platform/xml/document.h"

namespace platform::xml {

struct SaxAttribute {
  std::string_view name;
  std::string_view value;
};

/// What a document's content is told by. Every call throws XmlError on a fault.
class ContentHandler {
 public:
  virtual ~ContentHandler() = default;
  virtual void StartDocument() = 0;
  virtual void EndDocument() = 0;
  virtual void StartElement(std::string_view name, std::span<const SaxAttribute> attributes) = 0;
  virtual void EndElement(std::string_view name) = 0;
  /// Text that XML cannot carry throws and adds nothing.
  virtual void Characters(std::string_view text) = 0;
};

class LexicalHandler {
 public:
  virtual ~LexicalHandler() = default;
  virtual void StartDtd(std::string_view name) = 0;
  virtual void EndDtd() = 0;
  virtual void Comment(std::string_view text) = 0;
};

/// Builds a document from SAX events. The tree is the target's: what was told so far is in it.
/// Names are XML names without a prefix; the calls nest as the elements do.
class SaxWriter final : public ContentHandler, public LexicalHandler {
 public:
  explicit SaxWriter(Document target);

  void StartDocument() override;
  void EndDocument() override;
  void StartElement(std::string_view name, std::span<const SaxAttribute> attributes) override;
  void EndElement(std::string_view name) override;
  void Characters(std::string_view text) override;
  void StartDtd(std::string_view name) override;
  void EndDtd() override;
  void Comment(std::string_view text) override;

  /// What Characters takes: text XML can carry, of at most the 10,000,000 bytes that libxml2 reads.
  [[nodiscard]] static bool CanCarry(std::string_view text) noexcept;
  /// The names of the open elements from the document element down, with '/' between them.
  [[nodiscard]] std::string OpenPath() const;

  /// StartElement without attributes, Characters and EndElement in one. Text that XML cannot carry
  /// throws before there is an element.
  void TextElement(std::string_view name, std::string_view text);

 private:
  /// A name the document's dictionary already holds, known again by where its caller keeps it.
  struct KnownName {
    const char* address = nullptr;
    const unsigned char* interned = nullptr;
  };

  const unsigned char* Intern(std::string_view name);
  _xmlNode* OpenElement(std::string_view name);
  void AppendText(_xmlNode* element, std::string_view text);

  Document target_;
  _xmlNode* open_ = nullptr;  // the innermost open element, null outside the document element
  std::array<KnownName, 64> known_{};
};

}  // namespace platform::xml
