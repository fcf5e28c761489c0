// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <string>

#include "platform/xml/document.h"

struct _xsltStylesheet;

namespace platform::xml {

/// A compiled XSLT 1.0 stylesheet; copies share it. It may neither read nor write anything beyond
/// the documents a Processor is given.
class Stylesheet {
 public:
  /// Throws XmlError with the line of the fault. `name` stands in messages only.
  static Stylesheet Compile(const Document& source, const std::string& name);

  [[nodiscard]] _xsltStylesheet* Handle() const noexcept { return compiled_.get(); }

 private:
  explicit Stylesheet(std::shared_ptr<_xsltStylesheet> compiled) : compiled_(std::move(compiled)) {}
  std::shared_ptr<_xsltStylesheet> compiled_;
};

/// One run of a stylesheet. Recursion, steps and output are bounded by the size of the input.
class Processor {
 public:
  explicit Processor(Stylesheet stylesheet) : stylesheet_(std::move(stylesheet)) {}

  void SetInput(Document input) { input_ = std::move(input); }
  /// The output, which must live until Transform, refers to the result from there on.
  void SetOutput(Document& output) { output_ = &output; }
  /// False when the run failed: Error() then says why and where, and the output is what it was.
  bool Transform();
  [[nodiscard]] const std::string& Error() const noexcept { return error_; }

 private:
  Document Run(const Document& input);

  Stylesheet stylesheet_;
  Document input_;
  Document* output_ = nullptr;
  std::string error_;
};

}  // namespace platform::xml
