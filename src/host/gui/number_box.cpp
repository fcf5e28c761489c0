// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/number_box.h"

#include <QLineEdit>
#include <QVariant>

#include "host/gui/message_box.h"
#include "platform/text/number.h"

namespace Framework {

namespace {

constexpr const char* kShown = "shownText";

template <class T>
std::optional<T> Accept(QLineEdit& box, const std::variant<T, std::string>& read) {
  if (const T* value = std::get_if<T>(&read)) return *value;
  ShowMessageBox(std::get<std::string>(read), {}, msgbox::kIconWarning);
  box.setFocus(Qt::OtherFocusReason);
  box.selectAll();
  return std::nullopt;
}

}  // namespace

void ShowText(QLineEdit& box, const std::string& text) {
  const QString shown = QString::fromStdString(text);
  box.setProperty(kShown, shown);
  if (box.text() != shown) box.setText(shown);
  box.setModified(false);
}

void ShowNumber(QLineEdit& box, double value, const NumberFormat& format) {
  ShowText(box, platform::FixedText(value, format.decimals));
}

std::optional<double> TakeNumber(QLineEdit& box, double stored, const NumberFormat& format) {
  return IsEdited(box) ? ReadNumber(box, format.range) : stored;
}

std::optional<double> ReadNumber(QLineEdit& box, host::text::FieldRange range) {
  return Accept(box, host::text::ReadNumberField(box.text().toStdString(), range));
}

void ShowInteger(QLineEdit& box, long long value) { ShowText(box, std::to_string(value)); }

std::optional<long long> TakeInteger(QLineEdit& box, long long stored,
                                     host::text::FieldRange range) {
  if (!IsEdited(box)) return stored;
  return Accept(box, host::text::ReadIntegerField(box.text().toStdString(), range));
}

bool IsEdited(const QLineEdit& box) { return box.text() != box.property(kShown).toString(); }

}  // namespace Framework
