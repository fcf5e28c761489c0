// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/stylesheet_file.h"

#include <optional>

#include "host/project/ost_exception.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/xml/document.h"
#include "platform/xml/stylesheet.h"
#include "platform/xml/xml_error.h"

namespace Framework {

platform::xml::Document ReadStylesheetFile(const std::string& path) {
  std::optional<std::string> bytes;
  try {
    bytes = platform::ReadFile(path);
  } catch (const platform::FileError&) {
  }
  if (!bytes) throw OstException("Cannot open archive for input: " + path);
  return platform::xml::Document::Parse(*bytes);
}

std::string DescribeStylesheetFault(const std::string& path) {
  try {
    const auto bytes = platform::ReadFile(path);
    if (!bytes) return path + ": the stylesheet is missing";
    const auto source = platform::xml::Document::Parse(*bytes);
    static_cast<void>(platform::xml::Stylesheet::Compile(source, path));
    return path + ": the stylesheet does not load";
  } catch (const platform::FileError& error) {
    return error.what();
  } catch (const platform::xml::XmlError& error) {
    const std::string text = error.what();
    return text.starts_with(path) ? text : Located(path, error);
  }
}

}  // namespace Framework
