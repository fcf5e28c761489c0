// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
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

 private:
  Document target_;
  _xmlNode* open_ = nullptr;
};

}  // namespace platform::xml
