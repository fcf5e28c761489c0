// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "platform/xml/document.h"

class OstProject;

namespace Framework {

/// The document in a stylesheet file, plain or in a container (compressed, enciphered, both); an
/// enciphered one is opened with the key file that SupportKeyFile names. Throws OstException
/// "Cannot open archive for input: PATH" when the file cannot be opened; XmlError, FilterError or
/// FileError when its content, or the key's, cannot be taken.
[[nodiscard]] platform::xml::Document ReadStylesheetFile(const std::string& path,
                                                         const OstProject* project);

/// Why the stylesheet file at a path does not load, on one line that names the file and, where
/// there is one, the line.
[[nodiscard]] std::string DescribeStylesheetFault(const std::string& path,
                                                  const OstProject* project);

}  // namespace Framework
