// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/shown_text.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QVariant>

#include "automation/accessible_name.h"

namespace automation {
namespace {

QString WithoutMnemonic(QString text) {
  // "&&" stands for one "&" that is shown.
  return text.replace("&&", QChar(1)).remove('&').replace(QChar(1), '&');
}

QString LabelText(const QLabel& label) {
  const QString text = ReadableText(label.text(), label.textFormat());
  return label.buddy() != nullptr ? WithoutMnemonic(text) : text;
}

}  // namespace

QString ShownText(const QWidget& widget) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->displayText();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
  if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&widget)) return spin->text();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return LabelText(*label);
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
    return WithoutMnemonic(button->text());
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
    return WithoutMnemonic(group->title());
  if (const auto* plain = qobject_cast<const QPlainTextEdit*>(&widget)) return plain->toPlainText();
  if (const auto* rich = qobject_cast<const QTextEdit*>(&widget)) return rich->toPlainText();
  const QVariant text = widget.property("text");
  return text.isValid() ? text.toString() : widget.accessibleDescription();
}

}  // namespace automation
