// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <map>
#include <string>
#include <vector>

namespace Framework {

/// The version of the interface between the host and its extension libraries. A library built for
/// another one is refused.
inline constexpr int kExtensionInterface = 1;

/// The string resource that names the class of the library's tool.
inline constexpr unsigned kToolClassString = 1;

/// The names of the functions an extension library exports with C linkage.
inline constexpr const char* kExtensionInterfaceFunction = "OstExtensionInterface";  // int ()
inline constexpr const char* kExtensionAttachFunction = "OstExtensionAttach";        // bool ()
inline constexpr const char* kExtensionDetachFunction = "OstExtensionDetach";        // void ()

/// A library that extends the host's windows: it registers itself while it is attached.
struct ExtensionModule {
  std::string name;
  /// The library's string resources, by number.
  std::map<unsigned, std::string> strings;
};

/// False when a module of that name is registered already. The module is not owned.
bool RegisterExtensionModule(const ExtensionModule& module);
void UnregisterExtensionModule(const ExtensionModule& module);
/// The registered modules, in the order they came.
[[nodiscard]] const std::vector<const ExtensionModule*>& ExtensionModules();
/// The registered module of that name, or null.
[[nodiscard]] const ExtensionModule* FindExtensionModule(const std::string& name);

}  // namespace Framework
