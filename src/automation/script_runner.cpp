// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_runner.h"

#include <QJSEngine>
#include <QRegularExpression>
#include <QUrl>
#include <utility>

#include "automation/script_context.h"
#include "automation/script_output.h"
#include "automation/script_sysdef.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/text/code_page.h"

namespace automation {
namespace {

constexpr auto kPrint =
    "(function (output) {"
    "  return function print(...values) { output.line(values.map(String).join(' ')); };"
    "})";

/// The innermost line of this file in a trace of "FUNCTION:LINE:COLUMN:ADDRESS"; 0 without one.
int LineIn(const QStringList& trace, const QString& address) {
  static const QRegularExpression place(QStringLiteral(":(\\d+):-?\\d+$"));
  for (const QString& frame : trace) {
    if (!frame.endsWith(':' + address)) continue;
    const auto match = place.match(frame.chopped(address.size() + 1));
    if (match.hasMatch()) return match.captured(1).toInt();
  }
  return 0;
}

QString MessageOf(const QJSValue& thrown) {
  const QString message = thrown.isError() ? thrown.property("message").toString() : QString();
  return (message.isEmpty() ? thrown.toString() : message).simplified();
}

/// The script's text without a byte order mark.
std::string WithoutMark(std::string text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
  return platform::ToUtf8(text);
}

}  // namespace

struct ScriptRunner::State {
  // The context's values die before the engine they belong to.
  QJSEngine engine;
  ScriptContext context{engine};
};

ScriptRunner::ScriptRunner(Framework::PageHost& pages, std::function<bool()> save,
                           std::vector<std::string> arguments, std::ostream& output)
    : state_(std::make_unique<State>()) {
  QJSEngine& engine = state_->engine;
  QJSValue global = engine.globalObject();
  global.setProperty("sysdef",
                     engine.newQObject(new ScriptSysdef(state_->context, pages, std::move(save))));
  global.setProperty("print",
                     engine.evaluate(kPrint).call({engine.newQObject(new ScriptOutput(output))}));
  QJSValue args = engine.newArray(static_cast<uint>(arguments.size()));
  for (quint32 i = 0; i < arguments.size(); ++i)
    args.setProperty(i, QString::fromStdString(arguments[i]));
  global.setProperty("args", args);
}

ScriptRunner::~ScriptRunner() = default;

std::optional<std::string> ScriptRunner::Run(const std::string& file) {
  try {
    const auto text = platform::ReadFile(file);
    if (!text) return file + ": there is no such file";
    return RunText(WithoutMark(*text), file);
  } catch (const platform::FileError& error) {
    return error.what();
  }
}

std::optional<std::string> ScriptRunner::RunText(const std::string& text, const std::string& file) {
  QStringList trace;
  const QString name = QString::fromStdString(file);
  const QJSValue value = state_->engine.evaluate(QString::fromStdString(text), name, 1, &trace);
  if (trace.isEmpty() && !value.isError()) return std::nullopt;
  const int line = LineIn(trace, QUrl::fromLocalFile(name).toString());
  return file + ':' + std::to_string(line) + ": " + MessageOf(value).toStdString();
}

}  // namespace automation
