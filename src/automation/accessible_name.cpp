// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/accessible_name.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocumentFragment>

#include "automation/table.h"

namespace automation {
namespace {

using LabelOf = QHash<const QWidget*, const QLabel*>;

void CollectLabels(QWidget& root, LabelOf& labels) {
  for (const QLabel* label : root.findChildren<QLabel*>())
    if (label->buddy() != nullptr) labels.insert(label->buddy(), label);
}

const QLabel* FormLabel(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  const auto* form = parent ? qobject_cast<const QFormLayout*>(parent->layout()) : nullptr;
  return form ? qobject_cast<const QLabel*>(form->labelForField(const_cast<QWidget*>(&widget)))
              : nullptr;
}

QString CaptionOf(const QWidget& widget, const LabelOf& labels) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    const QString caption = PlainLabel(button->text());
    if (!caption.isEmpty()) return caption;
  }
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
    return PlainLabel(group->title());
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->buddy() != nullptr) return {};
    return PlainLabel(ReadableText(label->text(), label->textFormat()));
  }
  const QLabel* label = labels.value(&widget, nullptr);
  if (label == nullptr) label = FormLabel(widget);
  return label ? PlainLabel(ReadableText(label->text(), label->textFormat())) : QString();
}

bool OnlyShows(const QWidget& widget) {
  const auto* group = qobject_cast<const QGroupBox*>(&widget);
  return qobject_cast<const QLabel*>(&widget) != nullptr || (group && !group->isCheckable());
}

/// Controls whose child widgets are their own parts.
bool IsOneControl(QWidget& widget) {
  return Table::IsTable(widget) || qobject_cast<QComboBox*>(&widget) ||
         qobject_cast<QAbstractSpinBox*>(&widget) || qobject_cast<QAbstractItemView*>(&widget) ||
         qobject_cast<QLineEdit*>(&widget) || qobject_cast<QScrollBar*>(&widget) ||
         qobject_cast<QTabBar*>(&widget);
}

class Collector {
 public:
  Collector(QWidget& root, Tabs tabs) : tabs_(tabs) {
    CollectLabels(root, labels_);
    if (Table::IsTable(root)) {
      Visit(root);
    } else {
      Descend(root);
    }
  }

  std::vector<NamedWidget> found;

 private:
  void Visit(QWidget& widget) {
    const QString own = widget.accessibleName();
    const QString name = own.isEmpty() ? CaptionOf(widget, labels_) : own;
    if (!name.isEmpty()) found.push_back({&widget, name, own.isEmpty() && OnlyShows(widget)});
    const bool sheet = qobject_cast<QTabWidget*>(&widget) != nullptr;
    if (!IsOneControl(widget) && (!sheet || tabs_ == Tabs::kInside)) Descend(widget);
  }

  void Descend(QWidget& widget) {
    for (QObject* child : widget.children()) {
      auto* inner = qobject_cast<QWidget*>(child);
      if (inner != nullptr && !inner->isWindow()) Visit(*inner);
    }
  }

  Tabs tabs_;
  LabelOf labels_;
};

}  // namespace

QString PlainLabel(const QString& label) {
  QString plain;
  for (qsizetype i = 0; i < label.size(); ++i) {
    if (label[i] == '&' && ++i == label.size()) break;
    plain.append(label[i]);
  }
  plain = plain.trimmed();
  if (plain.endsWith(':')) plain.chop(1);
  return plain.trimmed();
}

QString ReadableText(const QString& text, Qt::TextFormat format) {
  const bool markup =
      format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
  return markup ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

std::vector<NamedWidget> NamedWidgets(QWidget& root, Tabs tabs) {
  return Collector(root, tabs).found;
}

}  // namespace automation
