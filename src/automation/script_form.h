// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QJSValue>
#include <QObject>

#include "automation/form.h"
#include "automation/script_context.h"

namespace automation {

/// A Form as scripts see it: a tab of a page, and the base of a page and a dialog.
class ScriptForm : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString title READ Title)

 public:
  ScriptForm(ScriptContext& context, Form form);

  [[nodiscard]] QString Title() const;

  // What is returned belongs to the engine.
  Q_INVOKABLE QObject* control(const QString& name) const;
  Q_INVOKABLE QObject* table(const QString& name) const;
  Q_INVOKABLE void press(const QString& name) const;
  Q_INVOKABLE QJSValue tabs() const;
  Q_INVOKABLE QObject* tab(const QString& text) const;
  Q_INVOKABLE void screenshot(const QString& file) const;

 protected:
  ScriptContext& context_;
  Form form_;
};

}  // namespace automation
