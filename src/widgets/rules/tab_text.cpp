// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/rules/tab_text.h"

#include <algorithm>

namespace GUI {

namespace {

void AppendCell(std::u16string& out, const std::u16string& cell) {
  if (cell.find_first_of(u"\t\r\n") == std::u16string::npos && !cell.starts_with(u'"')) {
    out += cell;
    return;
  }
  out += u'"';
  for (const char16_t character : cell) {
    if (character == u'"') out += u'"';
    out += character;
  }
  out += u'"';
}

/// Reads one cell from the front; stands then at its separator or at the end.
std::u16string TakeCell(std::u16string_view& text) {
  std::u16string cell;
  if (text.starts_with(u'"')) {
    text.remove_prefix(1);
    while (!text.empty()) {
      const bool quote = text.front() == u'"';
      if (quote && !text.starts_with(u"\"\"")) {
        text.remove_prefix(1);
        break;
      }
      cell += text.front();
      text.remove_prefix(quote ? 2 : 1);
    }
  }
  const std::size_t end = std::min(text.find_first_of(u"\t\r\n"), text.size());
  cell += text.substr(0, end);
  text.remove_prefix(end);
  return cell;
}

}  // namespace

std::u16string ToTabText(const TextRows& rows) {
  std::u16string out;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) out += u'\t';
      AppendCell(out, row[i]);
    }
    out += u'\n';
  }
  return out;
}

TextRows FromTabText(std::u16string_view text) {
  TextRows rows;
  while (!text.empty()) {
    std::vector<std::u16string> row{TakeCell(text)};
    while (text.starts_with(u'\t')) {
      text.remove_prefix(1);
      row.push_back(TakeCell(text));
    }
    text.remove_prefix(text.starts_with(u"\r\n") ? 2 : text.empty() ? 0 : 1);
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace GUI
