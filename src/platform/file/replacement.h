// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/file/descriptor.h"

struct stat;

namespace platform {

/// A new file that takes another's place as one step, or goes again without a trace.
class Replacement {
 public:
  /// Makes the new file beside the one at `path`, with its mode and owner where there is one; a
  /// symbolic link is followed. Throws FileError naming `path`, also where something stands there
  /// that is not a file or may not be written.
  explicit Replacement(std::filesystem::path path);
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  /// Throws FileError.
  void Write(std::string_view bytes) { WriteAll(file_, bytes, path_); }
  /// Brings the bytes to the disk, puts them in the old file's place and brings the folder's entry
  /// to the disk. Throws FileError; the old file stands then, unless only the last step failed.
  void Commit();

 private:
  void TakeOwnerAndMode(const struct stat& old);

  std::filesystem::path path_;
  std::filesystem::path target_;
  std::filesystem::path name_;
  Descriptor file_;
};

}  // namespace platform
