// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/aligned_text.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text/number.h"

namespace automation {
namespace {

constexpr std::array<std::pair<char32_t, char32_t>, 9> kWide{{{0x1100, 0x115f},
                                                              {0x2e80, 0xa4cf},
                                                              {0xac00, 0xd7a3},
                                                              {0xf900, 0xfaff},
                                                              {0xfe30, 0xfe6f},
                                                              {0xff00, 0xff60},
                                                              {0xffe0, 0xffe6},
                                                              {0x1f300, 0x1faff},
                                                              {0x20000, 0x3fffd}}};

int WidthOf(char32_t character) {
  switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
      return 0;
    default:
      break;
  }
  return std::any_of(kWide.begin(), kWide.end(),
                     [character](const auto& range) {
                       return range.first <= character && character <= range.second;
                     })
             ? 2
             : 1;
}

struct Column {
  int width = 0;
  bool numbers = false;
};

Column Measure(const TextRows& rows, qsizetype column, bool header) {
  Column measured;
  bool texts = false;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const QString cell = rows[row].value(column);
    measured.width = std::max(measured.width, DisplayWidth(cell));
    if ((header && row == 0) || cell.isEmpty()) continue;
    (platform::ParseNumber(cell.toStdString()) ? measured.numbers : texts) = true;
  }
  measured.numbers = measured.numbers && !texts;
  return measured;
}

QString Line(const QStringList& cells, const std::vector<Column>& columns) {
  QString line;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const QString cell = cells.value(static_cast<qsizetype>(i));
    const QString padding(columns[i].width - DisplayWidth(cell), ' ');
    line += columns[i].numbers ? padding + cell : cell + padding;
    line += "  ";
  }
  while (line.endsWith(' ')) line.chop(1);
  return line;
}

}  // namespace

int DisplayWidth(const QString& text) {
  int width = 0;
  for (const char32_t character : text.toStdU32String()) width += WidthOf(character);
  return width;
}

QStringList AlignedLines(const TextRows& rows, bool header) {
  qsizetype count = 0;
  for (const QStringList& row : rows) count = std::max(count, row.size());
  std::vector<Column> columns;
  QStringList rules;
  for (qsizetype i = 0; i < count; ++i) {
    columns.push_back(Measure(rows, i, header));
    rules.append(QString(columns.back().width, '-'));
  }
  QStringList lines;
  for (const QStringList& row : rows) {
    lines.append(Line(row, columns));
    if (header && lines.size() == 1) lines.append(Line(rules, columns));
  }
  return lines;
}

}  // namespace automation
