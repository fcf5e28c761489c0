// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/file/file.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <random>
#include <utility>

#include "platform/file/file_error.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const char* act, const fs::path& path, const std::string& reason) {
  throw FileError(std::string("Cannot ") + act + " " + path.string() + ": " + reason);
}

[[noreturn]] void FailWithErrno(const char* act, const fs::path& path) {
  Fail(act, path, std::strerror(errno));
}

/// An open file, closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) noexcept : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  [[nodiscard]] int Number() const noexcept { return number_; }
  [[nodiscard]] bool IsOpen() const noexcept { return number_ >= 0; }
  /// Closes it now; false where that reports an error of an earlier write.
  bool Close() noexcept { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

/// Up to `size` bytes, fewer only at the file's end.
std::size_t ReadSome(const Descriptor& file, char* to, std::size_t size, const fs::path& path) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t step = ::read(file.Number(), to + done, size - done);
    if (step < 0 && errno == EINTR) continue;
    if (step < 0) FailWithErrno("read", path);
    if (step == 0) break;
    done += static_cast<std::size_t>(step);
  }
  return done;
}

std::string ReadToEnd(const Descriptor& file, std::size_t expected, std::size_t limit,
                      const fs::path& path) {
  std::string bytes;
  // One byte more than expected: a file that grew while it was read shows itself.
  for (std::size_t room = expected + 1;; room *= 2) {
    const std::size_t before = bytes.size();
    bytes.resize(before + room);
    const std::size_t got = ReadSome(file, bytes.data() + before, room, path);
    bytes.resize(before + got);
    if (bytes.size() > limit)
      Fail("read", path, "it is longer than " + std::to_string(limit) + " bytes");
    if (got < room) return bytes;
  }
}

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

/// While it lives, a write past the process's file size limit fails instead of ending the process.
class SizeLimitAsError {
 public:
  SizeLimitAsError() {
    ::sigemptyset(&signal_);
    ::sigaddset(&signal_, SIGXFSZ);
    ::pthread_sigmask(SIG_BLOCK, &signal_, &before_);
  }
  SizeLimitAsError(const SizeLimitAsError&) = delete;
  SizeLimitAsError& operator=(const SizeLimitAsError&) = delete;
  ~SizeLimitAsError() {
    constexpr timespec kNow = {};
    if (::sigismember(&before_, SIGXFSZ) == 0) ::sigtimedwait(&signal_, nullptr, &kNow);
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t signal_ = {};
  sigset_t before_ = {};
};

/// Writes all bytes, brings them to the disk and closes the file.
void WriteToDisk(Descriptor& file, std::string_view bytes, const fs::path& path) {
  const SizeLimitAsError guard;
  while (!bytes.empty()) {
    const ssize_t step = ::write(file.Number(), bytes.data(), bytes.size());
    if (step < 0 && errno == EINTR) continue;
    if (step < 0) FailWithErrno("write", path);
    bytes.remove_prefix(static_cast<std::size_t>(step));
  }
  if (::fsync(file.Number()) != 0 || !file.Close()) FailWithErrno("write", path);
}

/// A new file beside the target; gone again unless it was renamed onto it.
class Replacement {
 public:
  /// Errors name `shown`: the path that the caller gave.
  Replacement(const fs::path& shown, fs::path target)
      : shown_(shown), target_(std::move(target)), name_(FreshName(FolderOf(target_))) {
    struct stat old = {};
    const bool exists = ::stat(target_.c_str(), &old) == 0;
    if (exists && !S_ISREG(old.st_mode)) Fail("write", shown_, "it is not a regular file");
    if (exists && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0)
      FailWithErrno("write", shown_);
    file_ = Descriptor(::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file_.IsOpen()) {
      name_.clear();
      FailWithErrno("write", shown_);
    }
    if (exists) TakeOwnerAndMode(old);
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (!name_.empty()) ::unlink(name_.c_str());
  }

  void Write(std::string_view bytes) { WriteToDisk(file_, bytes, shown_); }

  void RenameOntoTarget() {
    const Descriptor folder(::open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen()) FailWithErrno("write", shown_);
    if (::rename(name_.c_str(), target_.c_str()) != 0) FailWithErrno("write", shown_);
    name_.clear();
    // Some file systems cannot sync a folder: then there is nothing more to do.
    if (::fsync(folder.Number()) != 0 && errno != EINVAL) FailWithErrno("write", shown_);
  }

 private:
  /// Hidden, and short enough beside a target with a name of any length.
  static fs::path FreshName(const fs::path& folder) {
    std::random_device random;
    char name[32];
    std::snprintf(name, sizeof name, ".sysdef-%08x%08x", random(), random());
    return folder / name;
  }

  void TakeOwnerAndMode(const struct stat& old) {
    // Another's file may be ours to replace but not to give back; its mode is what must stay.
    if (::fchown(file_.Number(), old.st_uid, old.st_gid) != 0) errno = 0;
    if (::fchmod(file_.Number(), old.st_mode & 07777) != 0) FailWithErrno("write", shown_);
  }

  const fs::path& shown_;
  fs::path target_;
  fs::path name_;
  Descriptor file_;
};

}  // namespace

std::optional<std::string> ReadFile(const fs::path& path, std::size_t limit) {
  // Not blocking: opening a pipe without a writer would wait for ever.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.IsOpen() && errno == ENOENT) return std::nullopt;
  struct stat status = {};
  if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0) FailWithErrno("read", path);
  if (!S_ISREG(status.st_mode)) Fail("read", path, "it is not a regular file");
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size > limit) Fail("read", path, "it is longer than " + std::to_string(limit) + " bytes");
  return ReadToEnd(file, size, limit, path);
}

void WriteFileAtomically(const fs::path& path, std::string_view bytes) {
  Replacement replacement(path, FollowLinks(path));
  replacement.Write(bytes);
  replacement.RenameOntoTarget();
}

void WriteNewPrivateFile(const fs::path& path, std::string_view bytes) {
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!file.IsOpen()) FailWithErrno("write", path);
  try {
    WriteToDisk(file, bytes, path);
  } catch (const FileError&) {
    ::unlink(path.c_str());
    throw;
  }
}

}  // namespace platform
