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

void Show(QLineEdit& box, const std::string& text) {
  const QString shown = QString::fromStdString(text);
  box.setProperty(kShown, shown);
  if (box.text() != shown) box.setText(shown);
  box.setModified(false);
}

template <class T, class Read>
std::optional<T> Take(QLineEdit& box, T stored, Read read) {
  if (!IsEdited(box)) return stored;
  const auto result = read(box.text().toStdString());
  if (const T* value = std::get_if<T>(&result)) return *value;
  ShowMessageBox(std::get<std::string>(result), {}, msgbox::kIconWarning);
  box.setFocus(Qt::OtherFocusReason);
  box.selectAll();
  return std::nullopt;
}

}  // namespace

void ShowNumber(QLineEdit& box, double value, const NumberFormat& format) {
  Show(box, platform::FixedText(value, format.decimals));
}

std::optional<double> TakeNumber(QLineEdit& box, double stored, const NumberFormat& format) {
  return Take(box, stored, [&](const std::string& text) {
    return host::text::ReadNumberField(text, format.range);
  });
}

void ShowInteger(QLineEdit& box, long long value) { Show(box, std::to_string(value)); }

std::optional<long long> TakeInteger(QLineEdit& box, long long stored,
                                     host::text::FieldRange range) {
  return Take(box, stored,
              [&](const std::string& text) { return host::text::ReadIntegerField(text, range); });
}

bool IsEdited(const QLineEdit& box) { return box.text() != box.property(kShown).toString(); }

}  // namespace Framework
