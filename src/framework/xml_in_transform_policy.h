// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>

#include "framework/transform_policy_base.h"
#include "framework/xml_dom_mgr.h"
#include "host/project/run_time_db.h"

namespace Framework {

/// Run-time database to data object: stylesheet, then input archive over the element "Inputs".
template <class DataType>
class XMLInTransformPolicy : public TransformPolicyBase {
 public:
  using Data = DataType;
  using TransformPolicyBase::TransformPolicyBase;

  bool LoadTransform(const std::vector<const char*>& names) override {
    LoadStylesheet(names);
    return true;
  }
  [[nodiscard]] bool IsXMLIn() const override { return true; }
  [[nodiscard]] std::vector<std::string> GetNeededFragmentNames() const override {
    return neededFragments_;
  }

  /// True without a stylesheet, with `data` as it was.
  bool Transform(const RunTimeDB& database, Data& data) const {
    return Transform(database, neededFragments_, data);
  }
  /// The same from these fragments alone.
  bool Transform(const RunTimeDB& database, const std::vector<std::string>& fragments,
                 Data& data) const {
    if (!valid_) return true;
    if (!stylesheet_) return false;
    const auto inputs = Run(database, fragments, platform::xml::Element());
    return inputs && XMLDOMMgr<Data>(*inputs).Load(data, "Inputs");
  }
};

}  // namespace Framework
