// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>

#include "framework/transform_policy_base.h"
#include "framework/xml_dom_mgr.h"
#include "host/project/run_time_db.h"

namespace Framework {

/// Data object to run-time database: output archive into the element "ModuleOutputs", which joins
/// the fragments, then the stylesheet.
template <class DataType>
class XMLOutTransformPolicy : public TransformPolicyBase {
 public:
  using Data = DataType;
  using TransformPolicyBase::TransformPolicyBase;

  bool LoadTransform(const std::vector<const char*>& names) override {
    LoadStylesheet(names);
    return true;
  }
  [[nodiscard]] bool IsXMLOut() const override { return true; }
  [[nodiscard]] std::vector<std::string> GetNeededFragmentNames() const override {
    return neededFragments_;
  }

  /// True without a stylesheet, with nothing stored.
  bool Transform(RunTimeDB& database, Data& data) const {
    if (!valid_) return true;
    platform::xml::Document archive;
    // Half an object must not take the place of a whole one, so a failed store ends here.
    if (!XMLDOMMgr<Data>(archive).Store(data, "ModuleOutputs")) return false;
    if (!stylesheet_) return false;
    const auto stored = Run(database, neededFragments_, archive.Root());
    return stored && database.SetDOM(*stored);
  }
};

}  // namespace Framework
