// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/text_tables.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <utility>

#include "automation/accessible_name.h"
#include "automation/aligned_text.h"
#include "automation/input.h"
#include "automation/reading_order.h"
#include "automation/shown_text.h"
#include "automation/tab_sheet.h"
#include "automation/table.h"

namespace automation {
namespace {

QString Mark(bool checked) { return checked ? QStringLiteral("[x] ") : QStringLiteral("[ ] "); }

QString CellText(const Table& table, int row, int column) {
  const QString text = table.Cell(row, column).replace('\n', ' ');
  return table.Checked(row, column) ? (Mark(true) + text).trimmed() : text;
}

/// Whether it holds a text; a picture may have a description, which can be long.
bool IsField(const QWidget& widget) {
  return widget.property("text").isValid() || widget.property("currentText").isValid();
}

/// Lines under headings. Values are kept back until something else comes, so that they line up.
class Writer {
 public:
  void Heading(const QString& title, QChar rule) {
    Gap();
    Line(title);
    Line(QString(DisplayWidth(title), rule));
  }
  void Line(const QString& line) {
    EndValues();
    if (std::exchange(gap_, false) && !text_.isEmpty()) text_ += '\n';
    text_ += QString(indent_, ' ') + line + '\n';
  }
  /// One empty line before what comes next.
  void Gap() {
    EndValues();
    gap_ = true;
  }
  void Value(const QString& name, const QString& value) {
    values_.push_back({name, QString(value).replace('\n', ' ')});
  }
  /// Puts the unit behind the value of that name when it came last; false when it did not.
  bool Unit(const QString& name, const QString& unit) {
    if (values_.empty() || values_.back().front() != name) return false;
    values_.back().append(unit);
    return true;
  }
  void Indent(int blanks) {
    EndValues();
    indent_ += blanks;
  }
  [[nodiscard]] std::string Text() {
    EndValues();
    return text_.toStdString();
  }

 private:
  void EndValues() {
    const TextRows values = std::exchange(values_, {});
    for (const QString& line : AlignedLines(values, false)) Line(line);
  }

  QString text_;
  TextRows values_;
  int indent_ = 0;
  bool gap_ = false;
};

class Printer {
 public:
  explicit Printer(QWidget& window) : window_(window) {
    for (const NamedWidget& each : NamedWidgets(window, Tabs::kInside)) {
      names_.insert(each.widget, each.name);
      if (!each.decoration) controls_.insert(each.name);
    }
  }

  std::string Print() {
    writer_.Heading(window_.windowTitle(), '=');
    Inside(window_);
    return writer_.Text();
  }

 private:
  void Inside(QWidget& widget) {
    for (QWidget* child : InReadingOrder(widget)) Visit(*child);
  }

  void Visit(QWidget& widget) {
    if (!widget.isVisibleTo(&window_) || qobject_cast<QScrollBar*>(&widget)) return;
    if (Table::IsTable(widget)) return PrintTable(Table(widget, names_.value(&widget)));
    if (auto* sheet = qobject_cast<QTabWidget*>(&widget)) return PrintTabs(*sheet);
    if (auto* group = qobject_cast<QGroupBox*>(&widget)) return PrintGroup(*group);
    if (const auto* label = qobject_cast<QLabel*>(&widget)) return PrintLabel(*label);
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget)) return PrintButton(*button);
    if (names_.contains(&widget)) {
      PrintControl(widget);
    } else {
      Inside(widget);
    }
  }

  void PrintControl(QWidget& widget) {
    QString text = ShownText(widget);
    // An empty box shows its hint.
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    if (line && text.isEmpty()) text = line->placeholderText();
    const bool drawn = text.isEmpty() && !IsField(widget);
    // A named frame around others says nothing of its own.
    if (drawn) return Inside(widget);
    if (!IsField(widget)) {
      return writer_.Line(names_.value(&widget) + "  " + text.replace('\n', ' '));
    }
    writer_.Value(names_.value(&widget), text);
  }

  void PrintLabel(const QLabel& label) {
    const QString text = ShownText(label);
    const QString name = names_.value(&label);
    if (label.buddy() || text.trimmed().isEmpty()) return;
    const qsizetype slash = name.lastIndexOf(QLatin1String("/Unit"));
    if (slash >= 0 && writer_.Unit(name.left(slash), text)) return;
    const bool captions = label.accessibleName().isEmpty() && controls_.contains(name);
    if (captions) return;
    for (const QString& line : text.split('\n')) writer_.Line(line.trimmed());
  }

  void PrintButton(const QAbstractButton& button) {
    if (!button.isCheckable()) return;
    const QString caption = button.text().isEmpty() ? names_.value(&button) : ShownText(button);
    if (qobject_cast<const QRadioButton*>(&button)) {
      writer_.Line((button.isChecked() ? "(o) " : "( ) ") + caption);
    } else {
      writer_.Line(Mark(button.isChecked()) + caption);
    }
  }

  void PrintGroup(QGroupBox& group) {
    const QString title = ShownText(group);
    if (title.isEmpty()) return Inside(group);
    writer_.Gap();
    writer_.Line((group.isCheckable() ? Mark(group.isChecked()) : QString()) + title);
    writer_.Indent(2);
    Inside(group);
    writer_.Indent(-2);
    writer_.Gap();
  }

  void PrintTabs(QTabWidget& sheet) {
    const int before = sheet.currentIndex();
    for (const int tab : ShownTabs(*sheet.tabBar())) {
      if (!sheet.isTabEnabled(tab)) continue;
      sheet.setCurrentIndex(tab);
      Settle();
      writer_.Heading(PlainLabel(sheet.tabText(tab)), '-');
      Visit(*sheet.widget(tab));
    }
    sheet.setCurrentIndex(before);
  }

  void PrintTable(const Table& table) {
    QStringList headers = table.Headers();
    for (QString& header : headers) header = header.simplified();
    TextRows rows{headers};
    for (int row = 0; row < table.Rows(); ++row) {
      QStringList cells;
      for (int column = 0; column < table.Columns(); ++column)
        cells.append(CellText(table, row, column));
      rows.push_back(cells);
    }
    writer_.Gap();
    if (!table.Name().isEmpty()) writer_.Line(table.Name());
    writer_.Indent(2);
    for (const QString& line : AlignedLines(rows, true)) writer_.Line(line);
    writer_.Indent(-2);
    writer_.Gap();
  }

  QWidget& window_;
  QHash<const QWidget*, QString> names_;
  QSet<QString> controls_;
  Writer writer_;
};

}  // namespace

std::string TextTables(QWidget& window) { return Printer(window).Print(); }

}  // namespace automation
