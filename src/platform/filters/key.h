// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace platform::filters {

/// A secret key; its bytes are wiped when it goes.
class Key {
 public:
  static constexpr std::size_t kSize = 32;

  /// A new one from the system's random source.
  static Key Generate();
  /// From 64 hexadecimal digits; white space around them is taken. Throws FilterError.
  static Key FromText(std::string_view text);
  /// Reads a key file. Throws FilterError naming the file when it holds no key, FileError when it
  /// cannot be read.
  static Key FromFile(const std::filesystem::path& path);

  Key(const Key&) = default;
  Key& operator=(const Key&) = default;
  ~Key();

  /// 64 hexadecimal digits.
  [[nodiscard]] std::string Text() const;
  /// Writes a new key file that its owner alone may read. Throws FileError, also when a file is
  /// there: what a key enciphered is lost with it.
  void WriteNewFile(const std::filesystem::path& path) const;

  [[nodiscard]] const unsigned char* Bytes() const noexcept { return bytes_.data(); }

 private:
  Key() = default;
  std::array<unsigned char, kSize> bytes_{};
};

}  // namespace platform::filters
