// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <vector>

#include "automation/control.h"
#include "automation/table.h"

namespace automation {

/// One tab of a form's sheet.
struct TabInfo {
  QString text;
  bool enabled;
  bool current;
};

/// A page, a tab of a page or a dialog: finds its controls by accessible name. Every call throws
/// AutomationError when the form is gone, save Open.
class Form {
 public:
  /// `title` takes the place of the window's caption.
  explicit Form(QWidget& widget, QString title = {});

  [[nodiscard]] QWidget& Widget() const;
  [[nodiscard]] QString Title() const;

  /// Throws when there is none of that name, or more than one. A name outside the form's tab
  /// sheet goes before one on its tabs.
  [[nodiscard]] Control GetControl(const QString& name) const;
  [[nodiscard]] Table GetTable(const QString& name) const;
  void Press(const QString& name) const { GetControl(name).Click(); }

  /// The tabs of the form's sheet; none without a sheet.
  [[nodiscard]] std::vector<TabInfo> Tabs() const;
  /// Makes that tab current. Throws when there is none, or when it is disabled.
  [[nodiscard]] Form Tab(const QString& text) const;

  /// Writes a PNG. Throws when the file cannot be written.
  void Screenshot(const QString& file) const;
  /// False once the dialog has closed.
  [[nodiscard]] bool Open() const { return widget_ && widget_->isVisible(); }

 private:
  QPointer<QWidget> widget_;
  QString title_;
};

}  // namespace automation
