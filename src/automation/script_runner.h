// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace Framework {
class PageHost;
}

namespace automation {

/// Runs scripts that drive the pages. While it lives it answers message boxes, modal dialogs and
/// file choices in the person's place, so there is one at a time.
class ScriptRunner {
 public:
  /// `save` saves the project; true on success. `arguments` are the script's `args`; `print`
  /// writes to `output`. Host and output outlive the runner.
  ScriptRunner(Framework::PageHost& pages, std::function<bool()> save,
               std::vector<std::string> arguments, std::ostream& output);
  ~ScriptRunner();
  ScriptRunner(const ScriptRunner&) = delete;
  ScriptRunner& operator=(const ScriptRunner&) = delete;

  /// Runs a script file. Nothing when it ran to its end, else one line: "FILE:LINE: MESSAGE" of
  /// the exception that it did not catch, or "FILE: REASON" when it cannot be read; FILE is the
  /// text given here.
  [[nodiscard]] std::optional<std::string> Run(const std::string& file);
  /// Runs a script's text, which errors call `file`.
  [[nodiscard]] std::optional<std::string> RunText(const std::string& text,
                                                   const std::string& file);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace automation
