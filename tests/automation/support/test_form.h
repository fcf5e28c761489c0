// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QStringList>
#include <QWidget>
#include <utility>

class QFormLayout;
class QTableWidget;
class QTabWidget;

namespace test {

class Grid;

/// A window with every kind of control; what a person's work sets off is noted in `events`.
class TestForm : public QWidget {
  Q_OBJECT

 public:
  TestForm();

  /// What happened since the last call.
  QStringList TakeEvents() { return std::exchange(events_, {}); }
  QTabWidget* sheet;
  QTableWidget* parts;
  Grid* grid;

 private:
  void AddFields(QFormLayout& layout);
  void AddLists(QFormLayout& layout);
  void AddButtons(QFormLayout& layout);
  void AddTables(QFormLayout& layout);
  void AddTabs(QFormLayout& layout);
  /// "Ask": a dialog whose button "More" opens another one.
  void Ask();
  void Note(const QString& event) { events_.append(event); }

  QStringList events_;
};

}  // namespace test
