// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/key.h"

#include <sodium.h>

#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/filters/filter_error.h"
#include "platform/filters/sodium.h"

namespace platform::filters {
namespace {

constexpr std::size_t kLongestKeyFile = 4096;

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

}  // namespace

Key Key::Generate() {
  PrepareSodium();
  Key key;
  randombytes_buf(key.bytes_.data(), kSize);
  return key;
}

Key Key::FromText(std::string_view text) {
  text = Trim(text);
  Key key;
  std::size_t size = 0;
  const char* end = nullptr;
  const int result =
      sodium_hex2bin(key.bytes_.data(), kSize, text.data(), text.size(), nullptr, &size, &end);
  if (result != 0 || size != kSize || end != text.data() + text.size())
    throw FilterError("a key is 64 hexadecimal digits");
  return key;
}

Key Key::FromFile(const std::filesystem::path& path) {
  auto text = ReadFile(path, kLongestKeyFile);
  if (!text) throw FileError("Cannot read " + path.string() + ": there is no such file");
  try {
    Key key = FromText(*text);
    sodium_memzero(text->data(), text->size());
    return key;
  } catch (const FilterError& error) {
    throw FilterError(path.string() + ": " + error.what());
  }
}

Key::~Key() { sodium_memzero(bytes_.data(), kSize); }

std::string Key::Text() const {
  std::string text(2 * kSize + 1, '\0');
  sodium_bin2hex(text.data(), text.size(), bytes_.data(), kSize);
  text.pop_back();
  return text;
}

void Key::WriteNewFile(const std::filesystem::path& path) const {
  WriteNewPrivateFile(path, Text() + "\n");
}

}  // namespace platform::filters
