// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

namespace Framework {

class ToolPropertyPage;

/// What the host passes to the creation of a page.
using GUIArguments = std::vector<std::string>;

/// Makes pages of one kind.
class GUIInstantiatorBase {
 public:
  virtual ~GUIInstantiatorBase() = default;
  /// A new page wrapper; ownership passes to the caller.
  [[nodiscard]] virtual ToolPropertyPage* CreateInstance(const GUIArguments& arguments) const = 0;
};

/// The pages that libraries contribute, in the order they were added.
class GUIRegistry {
 public:
  /// The instantiator is not owned and must be removed before it dies.
  void AddInstantiator(const std::string& name, const GUIInstantiatorBase* instantiator);
  void RemoveInstantiator(const GUIInstantiatorBase* instantiator);
  /// Null when no page of that name is registered.
  [[nodiscard]] const GUIInstantiatorBase* Find(const std::string& name) const;
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  std::vector<std::pair<std::string, const GUIInstantiatorBase*>> rows_;
};

/// The registry of the process.
[[nodiscard]] GUIRegistry& GUIPageRegistry();

}  // namespace Framework
