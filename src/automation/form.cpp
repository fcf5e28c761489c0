// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/form.h"

#include <QPixmap>
#include <QTabBar>
#include <functional>
#include <utility>

#include "automation/accessible_name.h"
#include "automation/automation_error.h"
#include "automation/input.h"
#include "automation/reach.h"
#include "automation/tab_sheet.h"

namespace automation {
namespace {

using Accept = std::function<bool(QWidget&)>;

/// The one widget of that name; a control goes before a decoration, which only shows something.
QWidget* FindOne(const std::vector<NamedWidget>& widgets, const QString& name,
                 const Accept& accept) {
  for (const bool decoration : {false, true}) {
    QWidget* found = nullptr;
    for (const NamedWidget& each : widgets) {
      if (each.decoration != decoration || each.name != name || !accept(*each.widget)) continue;
      if (found) throw AutomationError(QStringLiteral("more than one \"%1\"").arg(name));
      found = each.widget;
    }
    if (found) return found;
  }
  return nullptr;
}

QString NamesOf(const std::vector<NamedWidget>& widgets, const Accept& accept) {
  QStringList names;
  for (const NamedWidget& each : widgets)
    if (!each.decoration && accept(*each.widget)) names.append('"' + each.name + '"');
  return names.isEmpty() ? QStringLiteral("nothing") : names.join(", ");
}

QWidget& Find(const Form& form, const char* kind, const QString& name, const Accept& accept) {
  const auto outside = NamedWidgets(form.Widget(), Tabs::kOutside);
  if (QWidget* widget = FindOne(outside, name, accept)) return *widget;
  const auto all = NamedWidgets(form.Widget(), Tabs::kInside);
  if (QWidget* widget = FindOne(all, name, accept)) return *widget;
  throw AutomationError(QStringLiteral("no %1 \"%2\" in \"%3\"; it has %4")
                            .arg(kind, name, form.Title(), NamesOf(all, accept)));
}

int FindTab(const Form& form, const QTabBar* bar, const QString& text) {
  if (bar != nullptr) {
    for (const int tab : ShownTabs(*bar))
      if (PlainLabel(bar->tabText(tab)) == text) return tab;
  }
  throw AutomationError(QStringLiteral("no tab \"%1\" in \"%2\"").arg(text, form.Title()));
}

}  // namespace

Form::Form(QWidget& widget, QString title) : widget_(&widget), title_(std::move(title)) {}

QWidget& Form::Widget() const {
  if (widget_) return *widget_;
  throw AutomationError(QStringLiteral("the form has been closed"));
}

QString Form::Title() const { return title_.isEmpty() ? Widget().windowTitle() : title_; }

Control Form::GetControl(const QString& name) const {
  return {Find(*this, "control", name, [](QWidget&) { return true; }), name};
}

Table Form::GetTable(const QString& name) const {
  return {Find(*this, "table", name, [](QWidget& widget) { return Table::IsTable(widget); }), name};
}

std::vector<TabInfo> Form::Tabs() const {
  std::vector<TabInfo> tabs;
  const QTabBar* bar = FindTabBar(Widget());
  if (bar == nullptr) return tabs;
  for (const int tab : ShownTabs(*bar)) {
    tabs.push_back(
        {PlainLabel(bar->tabText(tab)), bar->isTabEnabled(tab), tab == bar->currentIndex()});
  }
  return tabs;
}

Form Form::Tab(const QString& text) const {
  QTabBar* bar = FindTabBar(Widget());
  const int tab = FindTab(*this, bar, text);
  const QString name = QStringLiteral("tab %1").arg(text);
  RequireReach(*bar, name);
  if (!bar->isTabEnabled(tab))
    throw AutomationError(QStringLiteral("\"%1\" is disabled").arg(name));
  bar->setCurrentIndex(tab);
  Settle();
  QWidget* page = CurrentTabPage(*bar);
  return Form(page ? *page : Widget(), text);
}

void Form::Screenshot(const QString& file) const {
  if (!Widget().grab().save(file, "PNG"))
    throw AutomationError(QStringLiteral("the picture \"%1\" cannot be written").arg(file));
}

}  // namespace automation
