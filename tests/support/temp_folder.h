// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace test {

/// A folder of its own for one test, gone afterwards.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }
  /// Writes a file (folders on the way are made) and returns its path.
  std::filesystem::path Write(const std::string& name, std::string_view bytes) const;
  [[nodiscard]] std::string Read(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace test
