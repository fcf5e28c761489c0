// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "platform/file/file_error.h"

namespace platform {

[[noreturn]] inline void Fail(const char* act, const std::filesystem::path& path,
                              const std::string& reason) {
  throw FileError(std::string("Cannot ") + act + " " + path.string() + ": " + reason);
}

[[noreturn]] inline void FailWithErrno(const char* act, const std::filesystem::path& path) {
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

/// Writes all bytes; a write past the process's file size limit is an error like any other. Throws
/// FileError naming `path`.
void WriteAll(const Descriptor& file, std::string_view bytes, const std::filesystem::path& path);
/// Brings the file to the disk and closes it. Throws FileError naming `path`.
void SyncAndClose(Descriptor& file, const std::filesystem::path& path);

}  // namespace platform
