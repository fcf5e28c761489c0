// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QJSValue>
#include <QObject>
#include <QStringList>

#include "automation/script_context.h"
#include "automation/table.h"

namespace automation {

/// A Table as scripts see it.
class ScriptTable : public QObject {
  Q_OBJECT
  Q_PROPERTY(int rows READ Rows)
  Q_PROPERTY(int columns READ Columns)
  Q_PROPERTY(QStringList headers READ Headers)

 public:
  ScriptTable(ScriptContext& context, Table table);

  [[nodiscard]] int Rows() const;
  [[nodiscard]] int Columns() const;
  [[nodiscard]] QStringList Headers() const;

  Q_INVOKABLE QString cell(int row, int column) const;
  Q_INVOKABLE void setCell(int row, int column, const QString& text);
  Q_INVOKABLE QStringList choices(int row, int column) const;
  Q_INVOKABLE bool checked(int row, int column) const;
  Q_INVOKABLE void toggle(int row, int column);
  Q_INVOKABLE void clickCell(int row, int column);
  /// A first and a last row, or a list of such pairs.
  Q_INVOKABLE void select(const QJSValue& first, const QJSValue& last = {});
  Q_INVOKABLE QJSValue selected() const;
  Q_INVOKABLE bool editable(int row, int column) const;
  Q_INVOKABLE bool enabled(int row) const;
  Q_INVOKABLE QString background(int row, int column) const;
  Q_INVOKABLE QString tooltip(int row, int column) const;

 private:
  ScriptContext& context_;
  Table table_;
};

}  // namespace automation
