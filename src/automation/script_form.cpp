// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_form.h"

#include <utility>

#include "automation/script_control.h"
#include "automation/script_table.h"

namespace automation {

ScriptForm::ScriptForm(ScriptContext& context, Form form)
    : context_(context), form_(std::move(form)) {}

QString ScriptForm::Title() const {
  return context_.Guard([&] { return form_.Title(); });
}

QObject* ScriptForm::control(const QString& name) const {
  return context_.Guard(
      [&]() -> QObject* { return new ScriptControl(context_, form_.GetControl(name)); });
}

QObject* ScriptForm::table(const QString& name) const {
  return context_.Guard(
      [&]() -> QObject* { return new ScriptTable(context_, form_.GetTable(name)); });
}

void ScriptForm::press(const QString& name) const {
  context_.Guard([&] { form_.Press(name); });
}

QJSValue ScriptForm::tabs() const {
  return context_.Guard([&] {
    QJSValue list = context_.engine.newArray();
    quint32 count = 0;
    for (const TabInfo& tab : form_.Tabs()) {
      QJSValue entry = context_.engine.newObject();
      entry.setProperty("text", tab.text);
      entry.setProperty("enabled", tab.enabled);
      entry.setProperty("current", tab.current);
      list.setProperty(count++, entry);
    }
    return list;
  });
}

QObject* ScriptForm::tab(const QString& text) const {
  return context_.Guard([&]() -> QObject* { return new ScriptForm(context_, form_.Tab(text)); });
}

void ScriptForm::screenshot(const QString& file) const {
  context_.Guard([&] { form_.Screenshot(file); });
}

}  // namespace automation
