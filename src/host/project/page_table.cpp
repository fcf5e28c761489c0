// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/page_table.h"

#include "host/project/ost_exception.h"
#include "host/project/support_files.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

namespace {

using platform::xml::Document;
using platform::xml::Element;

constexpr std::size_t kPageTableLimit = 1u << 20;

Document ReadTable(const std::string& path) {
  try {
    const auto bytes = platform::ReadFile(path, kPageTableLimit);
    if (!bytes) throw OstException(path + ": the page table is missing");
    return Document::Parse(*bytes);
  } catch (const platform::FileError& error) {
    throw OstException(error.what());
  } catch (const platform::xml::XmlError& error) {
    throw OstException(Located(path, error));
  }
}

std::string Required(const std::string& path, Element row, const char* attribute) {
  const auto text = row.Attribute(attribute);
  if (text && !text->empty()) return *text;
  throw OstException(path + ":" + std::to_string(row.Line()) + ": a Page without " + attribute);
}

PageTableRow ReadRow(const std::string& path, Element page) {
  PageTableRow row{
      Required(path, page, "name"), Required(path, page, "in"), Required(path, page, "out"), {}};
  for (Element child = page.FirstChild(); child; child = child.NextSibling()) {
    if (child.BaseName() == "Fragment") row.fragments.push_back(Required(path, child, "name"));
  }
  return row;
}

}  // namespace

std::vector<PageTableRow> ReadPageTable(const OstProject& project) {
  const std::string path = Framework::GetToolFilePath(&project, "pages.xml");
  const Document document = ReadTable(path);
  if (document.Root().BaseName() != "PageTable") {
    throw OstException(path + ": the document element is not PageTable");
  }
  std::vector<PageTableRow> rows;
  for (Element page = document.Root().FirstChild(); page; page = page.NextSibling()) {
    if (page.BaseName() == "Page") rows.push_back(ReadRow(path, page));
  }
  return rows;
}
