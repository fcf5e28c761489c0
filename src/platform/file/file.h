// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The bytes of a regular file; nothing when no file is there. Throws FileError for anything that
/// is not a regular file, is longer than the limit, or cannot be read.
[[nodiscard]] std::optional<std::string> ReadFile(const std::filesystem::path& path,
                                                  std::size_t limit = 256u << 20);

/// A stream over the bytes of a regular file; not open where there is none or it cannot be read.
[[nodiscard]] std::ifstream OpenFile(const std::filesystem::path& path);

/// Replaces the file's content as one step: a reader, and a reader after a crash, sees the old or
/// the new bytes whole. On return the bytes and the folder's entry are on the disk. A symbolic
/// link stays one, the file's mode is kept, a file that may not be written is not replaced. Throws
/// FileError: the old file then stands unchanged (but where the folder could not be brought to the
/// disk after the step, the new one stands).
void WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// Writes a file that its owner alone may read and write. Throws FileError, also when there is
/// something of that name already; what it made is then gone again.
void WriteNewPrivateFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace platform
