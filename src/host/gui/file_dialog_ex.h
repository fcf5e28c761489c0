// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

/// The host's open-file dialog.
class CFileDialogEx {
 public:
  std::string title;
  /// Pairs of a description and its patterns, all separated by "|", ended by "||".
  std::string filter;
  std::string defaultExtension;
  /// Where the dialog starts; empty for where the last one ended.
  std::filesystem::path startFolder;

  /// Lets the person choose an existing file; nothing when cancelled, or when the host runs
  /// without user interaction and no chooser is set.
  [[nodiscard]] std::optional<std::filesystem::path> Choose() const;
};

/// Takes the place of the dialog on the screen; an empty function restores it.
using FileChooser =
    std::function<std::optional<std::filesystem::path>(const CFileDialogEx& dialog)>;
void SetFileChooser(FileChooser chooser);
