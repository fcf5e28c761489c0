// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_control.h"

#include <utility>

namespace automation {

ScriptControl::ScriptControl(ScriptContext& context, Control control)
    : context_(context), control_(std::move(control)) {}

QString ScriptControl::Text() const {
  return context_.Guard([&] { return control_.Text(); });
}
void ScriptControl::SetText(const QString& text) {
  context_.Guard([&] { control_.SetText(text); });
}
QStringList ScriptControl::Items() const {
  return context_.Guard([&] { return control_.Items(); });
}
int ScriptControl::Index() const {
  return context_.Guard([&] { return control_.Index(); });
}
bool ScriptControl::Checked() const {
  return context_.Guard([&] { return control_.Checked(); });
}
void ScriptControl::SetChecked(bool checked) {
  context_.Guard([&] { control_.SetChecked(checked); });
}
bool ScriptControl::Enabled() const {
  return context_.Guard([&] { return control_.Enabled(); });
}
bool ScriptControl::Visible() const {
  return context_.Guard([&] { return control_.Visible(); });
}
QString ScriptControl::ToolTip() const {
  return context_.Guard([&] { return control_.ToolTip(); });
}
void ScriptControl::type(const QString& keys) {
  context_.Guard([&] { control_.Type(keys); });
}
void ScriptControl::leave() {
  context_.Guard([&] { control_.Leave(); });
}
void ScriptControl::choose(const QString& text) {
  context_.Guard([&] { control_.Choose(text); });
}
void ScriptControl::click() {
  context_.Guard([&] { control_.Click(); });
}

}  // namespace automation
