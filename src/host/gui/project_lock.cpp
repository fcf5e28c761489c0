// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/project_lock.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace Framework {

ProjectLock::ProjectLock(const std::filesystem::path& database)
    : path_(QString::fromStdString(database.string() + ".lock")), lock_(path_) {
  // A lock that is merely old is still somebody's.
  lock_.setStaleLockTime(0);
}

bool ProjectLock::Acquire() {
  if (lock_.isLocked() || lock_.tryLock(0)) return true;
  if (lock_.error() != QLockFile::LockFailedError) return false;
  if (StaysEmpty()) QFile::remove(path_);
  return lock_.tryLock(0);
}

// The file is made and written at once; a program that was killed between the two leaves it empty
// for good, and nothing in it tells that its process is gone.
bool ProjectLock::StaysEmpty() const {
  constexpr int kLooks = 20;
  for (int look = 0; look < kLooks; ++look) {
    if (!QFile::exists(path_) || QFileInfo(path_).size() > 0) return false;
    QThread::msleep(50);
  }
  return true;
}

std::string ProjectLock::Obstacle() const {
  if (lock_.error() != QLockFile::LockFailedError)
    return "The project cannot be locked: no file can be made in its folder";
  qint64 process = 0;
  QString machine;
  QString program;
  if (!lock_.getLockInfo(&process, &machine, &program))
    return "The project is held by a program that left a damaged lock";
  return QStringLiteral("The project is held by %1 (process %2 on %3)")
      .arg(program)
      .arg(process)
      .arg(machine)
      .toStdString();
}

bool ProjectLock::TakeOver() {
  if (lock_.isLocked()) return true;
  return (!QFile::exists(path_) || QFile::remove(path_)) && Acquire();
}

}  // namespace Framework
