// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/stylesheet_file.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <optional>

#include "host/project/ost_exception.h"
#include "host/project/support_files.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/filters/container.h"
#include "platform/filters/filter_error.h"
#include "platform/filters/source.h"
#include "platform/xml/document.h"
#include "platform/xml/stylesheet.h"
#include "platform/xml/xml_error.h"

namespace Framework {

namespace {

namespace filters = platform::filters;

/// Of a stylesheet's text; what a container holds beyond it is not read.
constexpr std::size_t kStylesheetLimit = 64u << 20;

using platform::xml::Document;

std::ifstream Open(const std::string& path) {
  std::ifstream file = platform::OpenFile(path);
  if (!file.is_open()) throw OstException("Cannot open archive for input: " + path);
  return file;
}

/// The key of an enciphered file; none for others.
std::optional<filters::Key> KeyFor(std::istream& file, const OstProject* project) {
  const auto form = filters::ReadHeader(file);
  file.clear();
  file.seekg(0);
  if (!form || !form->isEnciphered) return std::nullopt;
  const auto keyFile = SupportKeyFile(project);
  if (keyFile.empty()) {
    throw filters::FilterError(
        "the file is enciphered, and neither SYSDEF_KEY_FILE nor the project's key " +
        std::string(kSupportKeyFileKey) + " names a key file");
  }
  return filters::Key::FromFile(keyFile);
}

std::string ReadAll(std::istream& content, std::size_t limit) {
  std::string text;
  std::array<char, 16384> buffer;
  while (const std::size_t got = filters::ReadSource(content, buffer.data(), buffer.size())) {
    text.append(buffer.data(), got);
    if (text.size() > limit)
      throw filters::FilterError("the content is longer than " + std::to_string(limit) + " bytes");
  }
  return text;
}

}  // namespace

Document ReadStylesheetFile(const std::string& path, const OstProject* project) {
  std::ifstream file = Open(path);
  const auto key = KeyFor(file, project);
  return Document::Parse(
      ReadAll(*filters::OpenContainer(file, key, kStylesheetLimit), kStylesheetLimit));
}

std::string DescribeStylesheetFault(const std::string& path, const OstProject* project) {
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) return path + ": the stylesheet is missing";
  try {
    const Document source = ReadStylesheetFile(path, project);
    static_cast<void>(platform::xml::Stylesheet::Compile(source, path));
    return path + ": the stylesheet does not load";
  } catch (const OstException& error) {
    return error.what();
  } catch (const platform::FileError& error) {
    return path + ": " + error.what();
  } catch (const filters::FilterError& error) {
    return path + ": " + error.what();
  } catch (const platform::xml::XmlError& error) {
    const std::string text = error.what();
    return text.starts_with(path) ? text : Located(path, error);
  }
}

}  // namespace Framework
