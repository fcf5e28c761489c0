// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "support/temp_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace test {

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "sysdef-test-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
  path_ = pattern;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempFolder::Write(const std::string& name, std::string_view bytes) const {
  const auto file = path_ / name;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
  return file;
}

std::string TempFolder::Read(const std::string& name) const {
  std::ifstream in(path_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace test
