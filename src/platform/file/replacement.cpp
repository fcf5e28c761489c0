// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/file/replacement.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdio>
#include <random>

namespace platform {
namespace {

namespace fs = std::filesystem;

/// Where a chain of symbolic links ends, whether or not a file stands there.
fs::path FollowLinks(const fs::path& path) {
  fs::path target = path;
  for (int step = 0; step < 40; ++step) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(target, error))) return target;
    const fs::path next = fs::read_symlink(target, error);
    if (error) Fail("write", path, error.message());
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  Fail("write", path, std::strerror(ELOOP));
}

fs::path FolderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// Hidden, and short enough beside a target with a name of any length.
fs::path FreshName(const fs::path& folder) {
  std::random_device random;
  char name[32];
  std::snprintf(name, sizeof name, ".sysdef-%08x%08x", random(), random());
  return folder / name;
}

}  // namespace

Replacement::Replacement(fs::path path)
    : path_(std::move(path)), target_(FollowLinks(path_)), name_(FreshName(FolderOf(target_))) {
  struct stat old = {};
  const bool exists = ::stat(target_.c_str(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) Fail("write", path_, "it is not a regular file");
  if (exists && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0)
    FailWithErrno("write", path_);
  file_ = Descriptor(::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file_.IsOpen()) FailWithErrno("write", path_);
  if (exists) TakeOwnerAndMode(old);
}

Replacement::~Replacement() {
  if (!name_.empty()) ::unlink(name_.c_str());
}

void Replacement::Commit() {
  SyncAndClose(file_, path_);
  const Descriptor folder(::open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.IsOpen()) FailWithErrno("write", path_);
  if (::rename(name_.c_str(), target_.c_str()) != 0) FailWithErrno("write", path_);
  name_.clear();
  // Some file systems cannot sync a folder: then there is nothing more to do.
  if (::fsync(folder.Number()) != 0 && errno != EINVAL) FailWithErrno("write", path_);
}

void Replacement::TakeOwnerAndMode(const struct stat& old) {
  // Another's file may be ours to replace but not to give back; its mode is what must stay.
  if (::fchown(file_.Number(), old.st_uid, old.st_gid) != 0) errno = 0;
  // A constructor that throws runs no destructor, so the new file goes here.
  if (::fchmod(file_.Number(), old.st_mode & 07777) == 0) return;
  const int reason = errno;
  ::unlink(name_.c_str());
  Fail("write", path_, std::strerror(reason));
}

}  // namespace platform
