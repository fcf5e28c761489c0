// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// Loaded before the C library: lets the disk fail for the program under test, in the folder that
// SYSDEF_FAULT_FOLDER names, as SYSDEF_FAULT says: "write:N" no byte fits after N more, "create" no
// file can be made, "sync" nothing reaches the disk, "rename" no file takes another's place.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

std::string_view Setting(const char* name) {
  const char* text = std::getenv(name);
  return text ? text : "";
}

bool Fails(std::string_view what) { return Setting("SYSDEF_FAULT") == what; }

bool IsInFolder(std::string_view path) {
  const auto folder = Setting("SYSDEF_FAULT_FOLDER");
  return path.starts_with(folder) || (!path.empty() && path.front() != '/');
}

bool IsFileInFolder(int file) {
  char path[4096];
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  const ssize_t size = readlink(link.c_str(), path, sizeof path);
  return size > 0 && path[0] == '/' && IsInFolder({path, static_cast<std::size_t>(size)});
}

template <class Function>
Function Next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// The bytes that still fit.
std::atomic<long>& Room() {
  constexpr std::string_view kWrite = "write:";
  static std::atomic<long> room =
      Setting("SYSDEF_FAULT").starts_with(kWrite)
          ? std::atol(Setting("SYSDEF_FAULT").substr(kWrite.size()).data())
          : -1;
  return room;
}

template <class Function>
int Open(const char* name, const char* path, int flags, mode_t mode) {
  if ((flags & O_CREAT) && Fails("create") && IsInFolder(path)) {
    errno = EROFS;
    return -1;
  }
  return Next<Function>(name)(path, flags, mode);
}

mode_t ModeOf(int flags, va_list rest) {
  return (flags & O_CREAT) ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = ModeOf(flags, rest);
  va_end(rest);
  return Open<int (*)(const char*, int, ...)>("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = ModeOf(flags, rest);
  va_end(rest);
  return Open<int (*)(const char*, int, ...)>("open64", path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
  using Write = ssize_t (*)(int, const void*, size_t);
  if (Room() < 0 || !IsFileInFolder(file)) return Next<Write>("write")(file, bytes, size);
  if (Room() == 0 && size > 0) {
    errno = ENOSPC;
    return -1;
  }
  const long part = std::min<long>(Room(), static_cast<long>(size));
  Room() -= part;
  return Next<Write>("write")(file, bytes, static_cast<size_t>(part));
}

int fsync(int file) {
  if (!Fails("sync") || !IsFileInFolder(file)) return Next<int (*)(int)>("fsync")(file);
  errno = EIO;
  return -1;
}

int rename(const char* from, const char* to) {
  using Rename = int (*)(const char*, const char*);
  if (!Fails("rename") || !IsInFolder(to)) return Next<Rename>("rename")(from, to);
  errno = EACCES;
  return -1;
}
}
