// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QJSEngine>
#include <QJSValue>
#include <exception>
#include <type_traits>

#include "automation/interaction.h"

namespace automation {

/// A value that a script threw, on its way through C++.
struct ScriptThrow {
  QJSValue value;
};

/// What the script objects share: the engine, and the way failures take between C++ and the script.
class ScriptContext {
 public:
  /// The engine outlives the context.
  explicit ScriptContext(QJSEngine& scriptEngine);

  /// Calls a function of the script; what it throws becomes a ScriptThrow.
  void Call(const QJSValue& function, const QJSValue& argument);

  /// Runs one call of a script. A C++ exception becomes an Error of the script, and so does what
  /// failed in a dialog function on the way; the call's value is then meaningless.
  template <class Call>
  auto Guard(Call&& call) -> decltype(call()) {
    using Result = decltype(call());
    try {
      if constexpr (std::is_void_v<Result>) {
        call();
        interaction.RethrowFailure();
        return;
      } else {
        Result result = call();
        interaction.RethrowFailure();
        return result;
      }
    } catch (const ScriptThrow& thrown) {
      engine.throwError(thrown.value);
    } catch (const std::exception& error) {
      engine.throwError(QJSValue::GenericError, QString::fromUtf8(error.what()));
    }
    if constexpr (!std::is_void_v<Result>) return Result();
  }

  QJSEngine& engine;
  Interaction interaction;

 private:
  QJSValue caller_;
};

}  // namespace automation
