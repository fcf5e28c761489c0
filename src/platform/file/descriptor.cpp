// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/file/descriptor.h"

#include <pthread.h>

#include <csignal>
#include <ctime>

namespace platform {
namespace {

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

}  // namespace

void WriteAll(const Descriptor& file, std::string_view bytes, const std::filesystem::path& path) {
  const SizeLimitAsError guard;
  while (!bytes.empty()) {
    const ssize_t step = ::write(file.Number(), bytes.data(), bytes.size());
    if (step < 0 && errno == EINTR) continue;
    if (step < 0) FailWithErrno("write", path);
    bytes.remove_prefix(static_cast<std::size_t>(step));
  }
}

void SyncAndClose(Descriptor& file, const std::filesystem::path& path) {
  if (::fsync(file.Number()) != 0 || !file.Close()) FailWithErrno("write", path);
}

}  // namespace platform
