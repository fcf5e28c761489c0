// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QObject>
#include <QStringList>

#include "automation/control.h"
#include "automation/script_context.h"

namespace automation {

/// A Control as scripts see it.
class ScriptControl : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString text READ Text WRITE SetText)
  Q_PROPERTY(QStringList items READ Items)
  Q_PROPERTY(int index READ Index)
  Q_PROPERTY(bool checked READ Checked WRITE SetChecked)
  Q_PROPERTY(bool enabled READ Enabled)
  Q_PROPERTY(bool visible READ Visible)
  Q_PROPERTY(QString tooltip READ ToolTip)

 public:
  ScriptControl(ScriptContext& context, Control control);

  [[nodiscard]] QString Text() const;
  void SetText(const QString& text);
  [[nodiscard]] QStringList Items() const;
  [[nodiscard]] int Index() const;
  [[nodiscard]] bool Checked() const;
  void SetChecked(bool checked);
  [[nodiscard]] bool Enabled() const;
  [[nodiscard]] bool Visible() const;
  [[nodiscard]] QString ToolTip() const;

  Q_INVOKABLE void type(const QString& keys);
  Q_INVOKABLE void leave();
  Q_INVOKABLE void choose(const QString& text);
  Q_INVOKABLE void click();

 private:
  ScriptContext& context_;
  Control control_;
};

}  // namespace automation
