// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "platform/xml/document.h"

namespace Framework {

/// The document in a stylesheet file. Throws OstException "Cannot open archive for input: PATH"
/// when the file cannot be opened, XmlError when its content cannot be taken.
[[nodiscard]] platform::xml::Document ReadStylesheetFile(const std::string& path);

/// Why the stylesheet file at a path does not load, on one line that names the file and, where
/// there is one, the line.
[[nodiscard]] std::string DescribeStylesheetFault(const std::string& path);

}  // namespace Framework
