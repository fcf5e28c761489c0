// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QJSValue>
#include <QObject>
#include <QStringList>
#include <cstddef>
#include <functional>

#include "automation/script_context.h"

namespace Framework {
class PageHost;
}

namespace automation {

/// The global object `sysdef` of a script.
class ScriptSysdef : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool needToSave READ NeedToSave WRITE SetNeedToSave)
  Q_PROPERTY(bool needToBuild READ NeedToBuild WRITE SetNeedToBuild)

 public:
  /// `save` saves the project; true on success. The host outlives the object.
  ScriptSysdef(ScriptContext& context, Framework::PageHost& host, std::function<bool()> save);

  [[nodiscard]] bool NeedToSave() const;
  void SetNeedToSave(bool need);
  [[nodiscard]] bool NeedToBuild() const;
  void SetNeedToBuild(bool need);

  Q_INVOKABLE QStringList pages() const;
  Q_INVOKABLE QObject* open(const QString& name);
  Q_INVOKABLE QString exportData(const QString& name);
  Q_INVOKABLE void importData(const QString& name, const QString& xml);
  Q_INVOKABLE QString database();
  Q_INVOKABLE bool save();
  Q_INVOKABLE QJSValue messages();
  Q_INVOKABLE QStringList log();
  Q_INVOKABLE void answer(const QString& button);
  Q_INVOKABLE void onDialog(const QJSValue& function);
  Q_INVOKABLE void chooseFile(const QString& path);

 private:
  ScriptContext& context_;
  Framework::PageHost& host_;
  std::function<bool()> save_;
  std::size_t logRead_;  ///< entries of the log that the script has seen
};

}  // namespace automation
