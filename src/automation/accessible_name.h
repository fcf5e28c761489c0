// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace automation {

/// A visible label without its mnemonic, its trailing colon and surrounding blanks.
[[nodiscard]] QString PlainLabel(const QString& label);
/// A label's text as it is read on the screen, markup taken away.
[[nodiscard]] QString ReadableText(const QString& text, Qt::TextFormat format);

/// A widget and the name it is found by.
struct NamedWidget {
  QWidget* widget;
  QString name;
  /// It only shows something: a label or a frame that was given no name of its own. A control of
  /// the same name goes before it.
  bool decoration;
};

enum class Tabs { kOutside, kInside };

/// The widgets below `root` that have a name, each before the widgets inside it; `root` itself
/// only when it is a table. A widget's name is its accessible name when one is set, else its own
/// caption, else the text of the label that belongs to it. Dialogs that `root` owns and the inner
/// parts of a control are left out; the pages of a tab sheet are looked into on request.
[[nodiscard]] std::vector<NamedWidget> NamedWidgets(QWidget& root, Tabs tabs);

}  // namespace automation
