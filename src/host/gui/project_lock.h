// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QLockFile>
#include <filesystem>
#include <string>

namespace Framework {

/// Says to other programs that this one may write a run-time database: a lock file beside it,
/// FILE.lock, that names program, process and machine. A lock whose process is gone is taken over;
/// one of another machine, or a damaged one, stays until a person removes it, but an empty one is
/// taken over after a second.
class ProjectLock {
 public:
  explicit ProjectLock(const std::filesystem::path& database);

  /// False when another program holds the lock, or the folder takes no lock file.
  bool Acquire();
  [[nodiscard]] bool Held() const { return lock_.isLocked(); }
  /// Why it was not acquired, without a full stop: "The project is held by sysdef (process 12 on
  /// host)".
  [[nodiscard]] std::string Obstacle() const;
  /// Removes the other program's lock and takes its place; false when that fails.
  bool TakeOver();

 private:
  [[nodiscard]] bool StaysEmpty() const;

  QString path_;
  QLockFile lock_;
};

}  // namespace Framework
