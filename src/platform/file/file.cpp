// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/file/file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <fstream>

#include "platform/file/descriptor.h"
#include "platform/file/replacement.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

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

std::ifstream OpenFile(const fs::path& path) {
  std::ifstream file;
  std::error_code ignored;
  // A pipe would wait for its writer, a folder opens and cannot be read.
  if (fs::is_regular_file(path, ignored)) file.open(path, std::ios::binary);
  return file;
}

void WriteFileAtomically(const fs::path& path, std::string_view bytes) {
  Replacement replacement(path);
  replacement.Write(bytes);
  replacement.Commit();
}

void WriteNewPrivateFile(const fs::path& path, std::string_view bytes) {
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!file.IsOpen()) FailWithErrno("write", path);
  try {
    WriteAll(file, bytes, path);
    SyncAndClose(file, path);
  } catch (const FileError&) {
    ::unlink(path.c_str());
    throw;
  }
}

}  // namespace platform
