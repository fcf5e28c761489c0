// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/grid_fmt_num_cell.h"

#include "host/gui/message_box.h"

namespace GUI {

CGridFmtNumCell::CGridFmtNumCell(const NumberCellFormat& format, const QString& text)
    : format_(format) {
  SetText(text);
}

void CGridFmtNumCell::SetText(const QString& text) {
  const QByteArray typed = text.toUtf8();
  const std::string formatted =
      format_.TextOf({typed.data(), static_cast<std::size_t>(typed.size())});
  // Most texts come in their own format already: share them.
  text_ = QLatin1String(formatted) == text ? text : QString::fromLatin1(formatted);
}

void CGridFmtNumCell::SetFormat(const NumberCellFormat& format) {
  format_ = format;
  SetText(QString(text_));
}

bool CGridFmtNumCell::ValidateEdit(const QString& text) const {
  const auto refusal = format_.Refusal(text.toStdString());
  if (refusal) ShowMessageBox(*refusal);
  return !refusal;
}

}  // namespace GUI
