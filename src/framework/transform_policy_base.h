// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/xml/document.h"
#include "platform/xml/stylesheet.h"

namespace Framework {

class RunTimeDB;
class Tool;

/// What both directions of a page's transfer share: a stylesheet of the tool's support files and
/// the names of the fragments it works on.
class TransformPolicyBase {
 public:
  /// Throws std::runtime_error "Invalid toolname" when no tool of that name lives.
  explicit TransformPolicyBase(const std::string& toolName);
  virtual ~TransformPolicyBase();
  TransformPolicyBase(const TransformPolicyBase&) = delete;
  TransformPolicyBase& operator=(const TransformPolicyBase&) = delete;

  virtual bool LoadTransform(const std::vector<const char*>& names);
  [[nodiscard]] virtual bool IsXMLIn() const { return false; }
  [[nodiscard]] virtual bool IsBinaryIn() const { return false; }
  [[nodiscard]] virtual bool IsXMLOut() const { return false; }
  [[nodiscard]] virtual bool IsBinaryOut() const { return false; }
  [[nodiscard]] virtual std::vector<std::string> GetNeededFragmentNames() const { return {}; }

  [[nodiscard]] bool Valid() const noexcept { return valid_; }
  [[nodiscard]] bool StylesheetLoaded() const noexcept { return valid_ && stylesheet_; }

 protected:
  /// Loads names[0] as the stylesheet; the fragments are the further names or, without one, those
  /// the stylesheet itself reads. An empty list, or an empty first name, only lets the stylesheet
  /// go. A file that is missing or does not load leaves the policy not valid. Throws OstException
  /// "Cannot open archive for input: PATH" when a file is there and cannot be opened.
  void LoadStylesheet(const std::vector<const char*>& names);
  /// Runs the stylesheet on these fragments, with `last` behind them where there is one; nothing
  /// when it did not succeed.
  [[nodiscard]] std::optional<platform::xml::Document> Run(
      const RunTimeDB& database, const std::vector<std::string>& fragments,
      platform::xml::Element last) const;

  bool valid_ = false;
  std::optional<platform::xml::Stylesheet> stylesheet_;
  std::vector<std::string> neededFragments_;
  Tool* tool_;
};

}  // namespace Framework
