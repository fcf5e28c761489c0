// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_sysdef.h"

#include <utility>

#include "automation/automation_error.h"
#include "automation/input.h"
#include "automation/script_dialog.h"
#include "automation/script_page.h"
#include "host/gui/message_box.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/gui/tool.h"
#include "host/project/log.h"
#include "host/project/run_time_db.h"

namespace automation {
namespace {

int AnswerCode(const QString& button) {
  using namespace msgbox;
  for (const int answer : {kAnswerYes, kAnswerNo, kAnswerOk, kAnswerCancel})
    if (button == AnswerName(answer)) return answer;
  throw AutomationError(QStringLiteral("\"%1\" is no button: Yes, No, OK, Cancel").arg(button));
}

QJSValue MessageValue(QJSEngine& engine, const Interaction::Message& message) {
  QJSValue value = engine.newObject();
  value.setProperty("text", QString::fromStdString(message.text));
  value.setProperty("caption", QString::fromStdString(message.caption));
  value.setProperty("style", message.style);
  value.setProperty("answer", msgbox::AnswerName(message.answer));
  return value;
}

/// The page's data object as it is now; that of a page that is not open is read first.
Framework::PageServices& DataOf(Framework::PageHost& host, const std::string& page) {
  const bool open = host.IsOpen(page);
  Framework::PageServices& services = Framework::PageHost::Services(host.Create(page));
  if (!open && !services.ReadFromRunTimeDB()) {
    throw AutomationError(
        QStringLiteral("the data of the page %1 cannot be read").arg(QString::fromStdString(page)));
  }
  return services;
}

}  // namespace

ScriptSysdef::ScriptSysdef(ScriptContext& context, Framework::PageHost& host,
                           std::function<bool()> save)
    : context_(context), host_(host), save_(std::move(save)), logRead_(tostream::Lines().size()) {}

bool ScriptSysdef::NeedToSave() const { return host_.GetTool().NeedToSave(); }
void ScriptSysdef::SetNeedToSave(bool need) { host_.GetTool().SetNeedToSave(need ? 1 : 0); }
bool ScriptSysdef::NeedToBuild() const { return host_.GetTool().NeedToBuild(); }
void ScriptSysdef::SetNeedToBuild(bool need) { host_.GetTool().SetNeedToBuild(need ? 1 : 0); }

QStringList ScriptSysdef::pages() const {
  QStringList names;
  for (const std::string& name : Framework::PageHost::Names())
    names.append(QString::fromStdString(name));
  return names;
}

QObject* ScriptSysdef::open(const QString& name) {
  return context_.Guard(
      [&]() -> QObject* { return new ScriptPage(context_, host_, name.toStdString()); });
}

QString ScriptSysdef::exportData(const QString& name) {
  return context_.Guard([&] {
    const platform::xml::Document data = DataOf(host_, name.toStdString()).ExportData();
    return QString::fromStdString(data.ToText(platform::xml::TextForm::kBare));
  });
}

void ScriptSysdef::importData(const QString& name, const QString& xml) {
  context_.Guard([&] {
    const std::string page = name.toStdString();
    const auto document = platform::xml::Document::Parse(xml.toStdString());
    Framework::PageHost::Services(ActivatePage(host_, page)).ImportData(document);
    if (!host_.Apply(page))
      throw AutomationError(QStringLiteral("the page %1 did not store the data").arg(name));
    Settle();
  });
}

QString ScriptSysdef::database() {
  return context_.Guard([&] {
    const Framework::RunTimeDB* database = host_.GetTool().GetRunTimeDB();
    if (database == nullptr) throw AutomationError(QStringLiteral("there is no run-time database"));
    return QString::fromStdString(database->Text());
  });
}

bool ScriptSysdef::save() {
  return context_.Guard([&] { return save_(); });
}

QJSValue ScriptSysdef::messages() {
  QJSValue list = context_.engine.newArray();
  quint32 count = 0;
  for (const Interaction::Message& message : context_.interaction.TakeMessages())
    list.setProperty(count++, MessageValue(context_.engine, message));
  return list;
}

QStringList ScriptSysdef::log() {
  const std::vector<tostream::Line>& all = tostream::Lines();
  QStringList lines;
  for (; logRead_ < all.size(); ++logRead_)
    lines.append(QString::fromStdString(all[logRead_].text));
  return lines;
}

void ScriptSysdef::answer(const QString& button) {
  context_.Guard([&] { context_.interaction.Answer(AnswerCode(button)); });
}

void ScriptSysdef::onDialog(const QJSValue& function) {
  context_.Guard([&] {
    if (!function.isCallable()) throw AutomationError(QStringLiteral("onDialog takes a function"));
    context_.interaction.OnDialog([this, function](Form& dialog) {
      context_.Call(function, context_.engine.newQObject(new ScriptDialog(context_, dialog)));
    });
  });
}

void ScriptSysdef::chooseFile(const QString& path) {
  context_.interaction.ChooseFile(path.toStdString());
}

}  // namespace automation
