// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileSystemWatcher>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

#include "app/recent_projects.h"
#include "app/session.h"
#include "host/gui/message_box.h"
#include "host/gui/page_host.h"
#include "host/gui/project_lock.h"
#include "host/gui/tool.h"
#include "host/gui/tool_frame.h"
#include "host/gui/tool_property_page.h"
#include "host/gui/tool_view.h"
#include "host/project/log.h"
#include "host/project/ost_exception.h"
#include "host/project/ost_project.h"
#include "host/project/run_time_db.h"

namespace app {

namespace {

constexpr int kSelectorWidth = 200;
constexpr QSize kFirstSize(1240, 860);

}  // namespace

MainWindow::MainWindow() {
  setAcceptDrops(true);
  setCentralWidget(BuildCentre());
  BuildLog();
  BuildActions();
  resize(kFirstSize.boundedTo(screen()->availableSize()));
  restoreGeometry(QSettings().value(QStringLiteral("geometry")).toByteArray());
  restoreState(QSettings().value(QStringLiteral("windowState")).toByteArray());
  splitter_->restoreState(QSettings().value(QStringLiteral("splitter")).toByteArray());
  UpdateState();
}

MainWindow::~MainWindow() {
  tostream::SetListener({});
  // The tool's frame goes before the tool that made it.
  if (session_) session_->Tool().CloseGui();
}

QWidget* MainWindow::BuildCentre() {
  selector_ = new QListWidget;
  selector_->setAccessibleName(tr("Pages"));
  selector_->setMinimumWidth(120);
  selector_->setStyleSheet(QStringLiteral("QListWidget::item { padding: 5px 8px; }"));
  connect(selector_, &QListWidget::currentRowChanged, this, &MainWindow::ShowPage);

  buttons_ = new QDialogButtonBox;
  const auto add = [&](const QString& text, QDialogButtonBox::ButtonRole role,
                       void (MainWindow::*slot)()) {
    connect(buttons_->addButton(text, role), &QPushButton::clicked, this, slot);
  };
  add(tr("&Apply"), QDialogButtonBox::ApplyRole, &MainWindow::Apply);
  add(tr("&Revert"), QDialogButtonBox::ResetRole, &MainWindow::Revert);
  add(tr("&Save"), QDialogButtonBox::AcceptRole, &MainWindow::SaveNow);

  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(buttons_);
  splitter_ = new QSplitter;
  splitter_->addWidget(selector_);
  splitter_->addWidget(page);
  splitter_->setStretchFactor(1, 1);
  splitter_->setSizes({kSelectorWidth, kFirstSize.width() - kSelectorWidth});
  splitter_->setChildrenCollapsible(false);
  return splitter_;
}

void MainWindow::BuildLog() {
  log_ = new QPlainTextEdit;
  log_->setReadOnly(true);
  log_->setMaximumBlockCount(5000);
  log_->setAccessibleName(tr("Log"));
  auto* dock = new QDockWidget(tr("Log"), this);
  dock->setObjectName(QStringLiteral("logDock"));
  dock->setWidget(log_);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
  dock->hide();
  tostream::SetListener([this, dock](const tostream::Line& line) {
    log_->appendPlainText(QString::fromStdString(line.text));
    if (line.level == tostream::kLogError) dock->show();
  });
}

QAction* MainWindow::AddAction(QMenu* menu, const QString& text, const QKeySequence& keys,
                               void (MainWindow::*slot)()) {
  QAction* action = menu->addAction(text);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void MainWindow::BuildActions() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  AddAction(file, tr("&Open Project..."), QKeySequence::Open, &MainWindow::ChooseProject);
  recent_ = file->addMenu(tr("Open &Recent"));
  connect(recent_, &QMenu::aboutToShow, this, &MainWindow::FillRecent);
  file->addSeparator();
  save_ = AddAction(file, tr("&Save"), QKeySequence::Save, &MainWindow::SaveNow);
  takeOver_ = AddAction(file, tr("&Take Over Lock..."), {}, &MainWindow::TakeOverLock);
  file->addSeparator();
  connect(file->addAction(tr("&Quit")), &QAction::triggered, this, &QWidget::close);
  file->actions().constLast()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

  QMenu* page = menuBar()->addMenu(tr("&Page"));
  AddAction(page, tr("&Apply"), QKeySequence(Qt::CTRL | Qt::Key_Return), &MainWindow::Apply);
  AddAction(page, tr("&Revert"), QKeySequence(Qt::Key_F5), &MainWindow::Revert);
  page->addSeparator();
  AddAction(page, tr("&Next"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), &MainWindow::NextPage);
  AddAction(page, tr("&Previous"), QKeySequence(Qt::CTRL | Qt::Key_PageUp),
            &MainWindow::PreviousPage);

  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addAction(findChild<QDockWidget*>(QStringLiteral("logDock"))->toggleViewAction());
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  AddAction(help, tr("&About"), {}, &MainWindow::About);
}

void MainWindow::ChooseProject() {
  const QString file = QFileDialog::getOpenFileName(this, tr("Open Project"), {},
                                                    tr("Projects (*.ostproj);;All Files (*)"));
  if (!file.isEmpty()) TryOpen(file);
}

void MainWindow::TryOpen(const QString& project) {
  if (!LetGo()) return;
  try {
    Open(project);
  } catch (const OstException& error) {
    TellFailure(error.what());
  }
}

void MainWindow::FillRecent() {
  recent_->clear();
  for (const QString& file : RecentProjects::Files()) {
    connect(recent_->addAction(file), &QAction::triggered, this, [this, file] { TryOpen(file); });
  }
  if (recent_->isEmpty()) recent_->addAction(tr("(none)"))->setEnabled(false);
}

void MainWindow::Open(const QString& project) {
  // One tool of a name lives at a time, so the old project closes before the new one opens, and
  // opens again when the new one cannot.
  const std::string before = session_ ? session_->Project().File().string() : std::string();
  CloseSession();
  try {
    ShowSession(project.toStdString());
  } catch (const OstException&) {
    CloseSession();
    if (!before.empty()) ShowSession(before);
    UpdateState();
    throw;
  }
  RecentProjects::Add(QString::fromStdString(session_->Project().File().string()));
}

void MainWindow::CloseSession() {
  if (session_) session_->Tool().CloseGui();
  delete watcher_;
  watcher_ = nullptr;
  view_ = nullptr;
  lock_.reset();
  session_.reset();
  edited_.clear();
  pageNames_.clear();
  const QSignalBlocker quiet(selector_);
  selector_->clear();
}

void MainWindow::ShowSession(const std::string& file) {
  session_ = std::make_unique<Session>(file);
  auto* frame = dynamic_cast<Framework::ToolFrame*>(session_->Tool().OpenGui());
  if (!frame) throw OstException(file + ": the tool has no window");
  view_ = frame->View();
  static_cast<QVBoxLayout*>(splitter_->widget(1)->layout())->insertWidget(0, frame, 1);
  connect(view_, &Framework::ToolView::Edited, this, &MainWindow::MarkEdited);
  session_->Tool().SetFlagListener([this] { UpdateState(); });
  {
    const QSignalBlocker quiet(selector_);
    for (const std::string& name : Framework::PageHost::Names()) {
      pageNames_ << QString::fromStdString(name);
      selector_->addItem(session_->Pages().Title(name));
    }
  }
  LockProject();
  WatchDatabase();
  selector_->setCurrentRow(0);
  selector_->setFocus();
  UpdateState();
}

void MainWindow::LockProject() {
  lock_ = std::make_unique<Framework::ProjectLock>(session_->Database().File());
  if (lock_->Acquire()) return;
  const std::string question = lock_->Obstacle() + ". Open it to look at only?";
  const int answer =
      ShowMessageBox(question, "Project in Use", msgbox::kYesNo | msgbox::kIconQuestion);
  if (answer == msgbox::kAnswerNo) {
    throw OstException(session_->Project().File().string() + ": not opened. " + lock_->Obstacle());
  }
}

void MainWindow::TakeOverLock() {
  const std::string question =
      lock_->Obstacle() +
      ". Remove its lock? What the other program saves from now on may be lost.";
  const int answer = ShowMessageBox(
      question, "Project in Use", msgbox::kYesNo | msgbox::kIconWarning | msgbox::kDefaultButton2);
  if (answer != msgbox::kAnswerYes) return;
  if (!lock_->TakeOver()) TellFailure("The lock could not be removed.");
  UpdateState();
}

void MainWindow::WatchDatabase() {
  // A file replaced as one step is another file, so its folder is watched too.
  const auto& file = session_->Database().File();
  watcher_ = new QFileSystemWatcher(this);
  watcher_->addPath(QString::fromStdString(file.parent_path().string()));
  watcher_->addPath(QString::fromStdString(file.string()));
  const auto later = [this] { QTimer::singleShot(200, this, &MainWindow::DatabaseChanged); };
  connect(watcher_, &QFileSystemWatcher::directoryChanged, this, later);
  connect(watcher_, &QFileSystemWatcher::fileChanged, this, later);
}

void MainWindow::DatabaseChanged() {
  if (!session_ || asking_ || !session_->Database().ChangedOnDisk()) return;
  asking_ = true;
  const int answer = ShowMessageBox(
      "Another program changed the project's database. Load its changes? What is not saved here is "
      "lost then; No keeps it, and the next save replaces what the other program wrote.",
      "Database Changed", msgbox::kYesNo | msgbox::kIconQuestion);
  try {
    if (answer == msgbox::kAnswerYes) {
      session_->Tool().Reload();
      edited_.clear();
    } else {
      session_->Database().KeepMine();
    }
  } catch (const std::exception& error) {
    TellFailure(error.what());
  }
  asking_ = false;
  UpdateState();
}

void MainWindow::ShowPage(int row) {
  if (!view_ || row < 0) return;
  if (view_->Activated(pageNames_[row].toUtf8().constData())) return;
  const std::string error = view_->LastError();
  SelectShownPage();
  // A click selects its row only after this.
  QTimer::singleShot(0, this, &MainWindow::SelectShownPage);
  if (!error.empty()) TellFailure(error);
}

void MainWindow::SelectShownPage() {
  if (!view_) return;
  const QSignalBlocker quiet(selector_);
  selector_->setCurrentRow(
      static_cast<int>(pageNames_.indexOf(QString::fromStdString(view_->Current()))));
}

void MainWindow::StepPage(int step) {
  const int rows = selector_->count();
  if (rows > 0) selector_->setCurrentRow((selector_->currentRow() + step + rows) % rows);
}

void MainWindow::Apply() {
  if (!view_ || view_->Current().empty()) return;
  if (!session_->Pages().Apply(view_->Current())) return;
  edited_.erase(view_->Current());
  statusBar()->showMessage(tr("Applied"), 3000);
  UpdateState();
}

void MainWindow::Revert() {
  if (!view_ || view_->Current().empty()) return;
  try {
    session_->Pages().Revert(view_->Current());
  } catch (const OstException& error) {
    TellFailure(error.what());
    return;
  }
  edited_.erase(view_->Current());
  statusBar()->showMessage(tr("Reverted"), 3000);
  UpdateState();
}

bool MainWindow::Save() {
  if (!session_) return true;
  if (!lock_->Held()) {
    TellFailure("The project is open to look at only. " + lock_->Obstacle() + ".");
    return false;
  }
  const std::string refused = session_->Pages().ApplyAll();
  if (!refused.empty()) {
    selector_->setCurrentRow(static_cast<int>(pageNames_.indexOf(QString::fromStdString(refused))));
    return false;
  }
  edited_.clear();
  if (!session_->Tool().Save()) {
    TellFailure(session_->Tool().LastError());
    UpdateState();
    return false;
  }
  statusBar()->showMessage(tr("Saved"), 3000);
  UpdateState();
  return true;
}

void MainWindow::About() {
  QMessageBox::about(this, tr("About"),
                     tr("<b>System Definition</b> " SYSDEF_VERSION
                        "<p>Describes the illumination side of a projector: color wheel, light "
                        "sources, lamp pulses and their timing.</p>"
                        "<p>License: GPL-3.0-or-later</p>"));
}

bool MainWindow::LetGo() {
  if (!isWindowModified()) return true;
  const int answer =
      ShowMessageBox("The project has changes that are not saved. Save them?", "Unsaved Changes",
                     msgbox::kYesNoCancel | msgbox::kIconQuestion);
  if (answer == msgbox::kAnswerYes) return Save();
  return answer == msgbox::kAnswerNo || answer == msgbox::kAnswerIgnore;
}

void MainWindow::MarkEdited() {
  edited_.insert(view_->Current());
  UpdateState();
}

void MainWindow::UpdateState() {
  const bool open = session_ != nullptr;
  const QString name =
      open ? QString::fromStdString(session_->Project().File().stem().string()) : QString();
  setWindowTitle(open ? name + QStringLiteral("[*]") : QString());
  setWindowModified(open && (session_->Tool().NeedToSave() || session_->Database().Modified() ||
                             !edited_.empty()));
  const bool writable = open && lock_ && lock_->Held();
  if (open && lock_ && !writable) setWindowTitle(windowTitle() + tr(" (read-only)"));
  buttons_->setEnabled(open);
  for (QAbstractButton* button : buttons_->buttons()) {
    if (buttons_->buttonRole(button) == QDialogButtonBox::AcceptRole) button->setEnabled(writable);
  }
  save_->setEnabled(writable);
  takeOver_->setEnabled(open && !writable);
}

void MainWindow::TellFailure(const std::string& text) {
  ShowMessageBox(text, {}, msgbox::kIconError);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!LetGo()) {
    event->ignore();
    return;
  }
  QSettings().setValue(QStringLiteral("geometry"), saveGeometry());
  QSettings().setValue(QStringLiteral("windowState"), saveState());
  QSettings().setValue(QStringLiteral("splitter"), splitter_->saveState());
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const auto urls = event->mimeData()->urls();
  if (!urls.isEmpty() && urls.front().isLocalFile()) TryOpen(urls.front().toLocalFile());
}

}  // namespace app
