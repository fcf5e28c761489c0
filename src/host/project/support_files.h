// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <string>
#include <vector>

class OstProject;

namespace platform::xml {
class Document;
}

namespace Framework {

/// The folder that the host's own library was loaded from.
[[nodiscard]] std::filesystem::path HostLibraryFolder();

/// The installed data folder: `share/sysdef` beside the folder of the host's library, or the
/// folder that the environment variable SYSDEF_DATA names.
[[nodiscard]] std::filesystem::path DataFolder();

/// The full path of one of the tools' support files: in the project's folder `support` when it is
/// there, else in the installed data folder (whether or not it is there). A null project has
/// installed files only.
[[nodiscard]] std::string GetToolFilePath(const OstProject* project, const char* fileName);

/// The project's key that names the key file of enciphered support files, from the project's
/// folder.
inline constexpr const char* kSupportKeyFileKey = "projectclass.support.keyfile";
/// The key file of enciphered support files: the one that the environment variable SYSDEF_KEY_FILE
/// names, else the one that the project names; empty when neither does.
[[nodiscard]] std::filesystem::path SupportKeyFile(const OstProject* project);

}  // namespace Framework

/// The names of the fragments that a stylesheet reads: every NAME of a path step
/// `RunTimeDB/NAME` in its patterns and expressions, each once, in document order.
[[nodiscard]] std::vector<std::string> ExtractNeededDBFragmentNames(
    const platform::xml::Document& stylesheet);
