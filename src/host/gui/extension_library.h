// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QLibrary>
#include <filesystem>

namespace Framework {

/// An extension library of the host, attached while this object lives.
class ExtensionLibrary {
 public:
  /// Loads and attaches the library. Throws OstException naming the file and what was wrong: it is
  /// missing, is no library, was built for another interface, or refused to attach.
  explicit ExtensionLibrary(const std::filesystem::path& file);
  ~ExtensionLibrary();
  ExtensionLibrary(const ExtensionLibrary&) = delete;
  ExtensionLibrary& operator=(const ExtensionLibrary&) = delete;

 private:
  QFunctionPointer Resolve(const char* function);

  std::filesystem::path file_;
  QLibrary library_;
};

}  // namespace Framework
