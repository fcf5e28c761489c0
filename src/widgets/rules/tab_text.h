// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace GUI {

using TextRows = std::vector<std::vector<std::u16string>>;

/// Rows and cells of a block as spreadsheets put it on the clipboard: tabs between cells, a line
/// feed after each row; a cell with a tab, a line end or a quote at its start stands in quotes.
[[nodiscard]] std::u16string ToTabText(const TextRows& rows);
/// The same read back; CR LF and CR end a row too, and the last row may lack its end.
[[nodiscard]] TextRows FromTabText(std::u16string_view text);

}  // namespace GUI
