// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace automation {

/// The columns of a terminal that the text takes: none for a combining mark, two for a wide East
/// Asian character or an emoji.
[[nodiscard]] int DisplayWidth(const QString& text);

using TextRows = std::vector<QStringList>;

/// One line a row, its cells in columns two blanks apart; a column of numbers stands on the right.
/// Rows may have cells fewer than others. With `header` the first row is underlined and does not
/// count for what a column holds.
[[nodiscard]] QStringList AlignedLines(const TextRows& rows, bool header);

}  // namespace automation
