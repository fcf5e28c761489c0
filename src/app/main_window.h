// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QMainWindow>
#include <QStringList>
#include <memory>
#include <set>
#include <string>

class QAction;
class QFileSystemWatcher;
class QDialogButtonBox;
class QListWidget;
class QMenu;
class QPlainTextEdit;
class QSplitter;

namespace Framework {
class ProjectLock;
class ToolView;
}  // namespace Framework

namespace app {

class Session;

/// The suite's main window around one project: page selector, page, and what is done with both.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  /// Opens a project in place of the one shown. Throws OstException; the window then shows what
  /// it showed before.
  void Open(const QString& project);
  void Open(const std::string& project) { Open(QString::fromStdString(project)); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildActions();
  void BuildLog();
  QAction* AddAction(QMenu* menu, const QString& text, const QKeySequence& keys,
                     void (MainWindow::*slot)());
  QWidget* BuildCentre();

  void ShowSession(const std::string& file);
  void CloseSession();
  /// Asks whether a project that another program holds is to be looked at only.
  void LockProject();
  void WatchDatabase();
  void DatabaseChanged();
  void TakeOverLock();

  void ChooseProject();
  void TryOpen(const QString& project);
  void FillRecent();
  void ShowPage(int row);
  void SelectShownPage();
  void StepPage(int step);
  void NextPage() { StepPage(1); }
  void PreviousPage() { StepPage(-1); }
  void Apply();
  void Revert();
  bool Save();
  void SaveNow() { Save(); }
  void About();
  /// False when the person would rather keep the project open.
  bool LetGo();
  void MarkEdited();
  void UpdateState();
  void TellFailure(const std::string& text);

  std::unique_ptr<Session> session_;
  std::unique_ptr<Framework::ProjectLock> lock_;
  QFileSystemWatcher* watcher_ = nullptr;
  bool asking_ = false;
  Framework::ToolView* view_ = nullptr;
  QSplitter* splitter_ = nullptr;
  QListWidget* selector_ = nullptr;
  QDialogButtonBox* buttons_ = nullptr;
  QMenu* recent_ = nullptr;
  QAction* save_ = nullptr;
  QAction* takeOver_ = nullptr;
  QPlainTextEdit* log_ = nullptr;
  QStringList pageNames_;
  /// Pages with edits that they have not stored yet.
  std::set<std::string> edited_;
};

}  // namespace app
