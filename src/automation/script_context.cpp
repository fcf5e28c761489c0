// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_context.h"

namespace automation {
namespace {

// QJSValue::call cannot tell a thrown value that is no Error from a returned one.
constexpr auto kCaller =
    "(function (f, x) { try { f(x); } catch (e) { return { thrown: e }; } return {}; })";

}  // namespace

ScriptContext::ScriptContext(QJSEngine& scriptEngine)
    : engine(scriptEngine), caller_(engine.evaluate(kCaller)) {}

void ScriptContext::Call(const QJSValue& function, const QJSValue& argument) {
  const QJSValue outcome = caller_.call({function, argument});
  if (outcome.hasProperty("thrown")) throw ScriptThrow{outcome.property("thrown")};
}

}  // namespace automation
