// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_table.h"

#include <utility>

#include "automation/automation_error.h"

namespace automation {
namespace {

int RowNumber(const QJSValue& value) {
  if (value.isNumber() && value.toNumber() == value.toInt()) return value.toInt();
  throw AutomationError(QStringLiteral("\"%1\" is no row number").arg(value.toString()));
}

quint32 Length(const QJSValue& list) { return list.property("length").toUInt(); }

TableAccess::Blocks BlocksOf(const QJSValue& list) {
  TableAccess::Blocks blocks;
  for (quint32 i = 0; i < Length(list); ++i) {
    const QJSValue block = list.property(i);
    if (!block.isArray() || Length(block) != 2)
      throw AutomationError(QStringLiteral("a block is a first and a last row: [first, last]"));
    blocks.emplace_back(RowNumber(block.property(0)), RowNumber(block.property(1)));
  }
  return blocks;
}

}  // namespace

ScriptTable::ScriptTable(ScriptContext& context, Table table)
    : context_(context), table_(std::move(table)) {}

int ScriptTable::Rows() const {
  return context_.Guard([&] { return table_.Rows(); });
}
int ScriptTable::Columns() const {
  return context_.Guard([&] { return table_.Columns(); });
}
QStringList ScriptTable::Headers() const {
  return context_.Guard([&] { return table_.Headers(); });
}
QString ScriptTable::cell(int row, int column) const {
  return context_.Guard([&] { return table_.Cell(row, column); });
}
void ScriptTable::setCell(int row, int column, const QString& text) {
  context_.Guard([&] { table_.SetCell(row, column, text); });
}
QStringList ScriptTable::choices(int row, int column) const {
  return context_.Guard([&] { return table_.Choices(row, column); });
}
bool ScriptTable::checked(int row, int column) const {
  return context_.Guard([&] { return table_.Checked(row, column); });
}
void ScriptTable::toggle(int row, int column) {
  context_.Guard([&] { table_.Toggle(row, column); });
}
void ScriptTable::clickCell(int row, int column) {
  context_.Guard([&] { table_.ClickCell(row, column); });
}

void ScriptTable::select(const QJSValue& first, const QJSValue& last) {
  context_.Guard([&] {
    if (first.isArray()) {
      table_.Select(BlocksOf(first));
    } else {
      table_.Select({{RowNumber(first), RowNumber(last)}});
    }
  });
}

QJSValue ScriptTable::selected() const {
  return context_.Guard([&] {
    const TableAccess::Blocks blocks = table_.Selected();
    QJSValue list = context_.engine.newArray(static_cast<uint>(blocks.size()));
    for (quint32 i = 0; i < blocks.size(); ++i) {
      QJSValue block = context_.engine.newArray(2);
      block.setProperty(0, blocks[i].first);
      block.setProperty(1, blocks[i].second);
      list.setProperty(i, block);
    }
    return list;
  });
}

bool ScriptTable::editable(int row, int column) const {
  return context_.Guard([&] { return table_.Editable(row, column); });
}
bool ScriptTable::enabled(int row) const {
  return context_.Guard([&] { return table_.RowEnabled(row); });
}
QString ScriptTable::background(int row, int column) const {
  return context_.Guard([&] { return table_.Background(row, column); });
}
QString ScriptTable::tooltip(int row, int column) const {
  return context_.Guard([&] { return table_.ToolTip(row, column); });
}

}  // namespace automation
