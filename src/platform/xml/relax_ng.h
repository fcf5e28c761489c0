// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/xml/document.h"

struct _xmlRelaxNG;

namespace platform::xml {

struct SchemaFault {
  long line = 0;
  std::string text;
};

/// A RELAX NG schema in XML syntax. It includes nothing from outside.
class RelaxNgSchema {
 public:
  /// Throws XmlError.
  static RelaxNgSchema Compile(const Document& source);
  /// Every fault the document has, in document order; empty when it is valid.
  [[nodiscard]] std::vector<SchemaFault> Validate(const Document& document) const;

 private:
  explicit RelaxNgSchema(std::shared_ptr<_xmlRelaxNG> compiled) : compiled_(std::move(compiled)) {}
  std::shared_ptr<_xmlRelaxNG> compiled_;
};

}  // namespace platform::xml
