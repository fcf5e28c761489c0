// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "archive/text_type.h"

namespace zel::archive {

/// Qt's string is a text of the archives. Include it before the class that holds one is archived.
template <>
struct text_type<QString> {
  static std::string to_utf8(const QString& text) { return text.toStdString(); }
  static QString from_utf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  }
};

}  // namespace zel::archive
