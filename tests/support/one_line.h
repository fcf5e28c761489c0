// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <gmock/gmock.h>

#include <string>

namespace test {

/// One line of the program's own on standard error that holds every one of the words.
MATCHER_P(IsOneLineWith, words, "") {
  const std::string& text = arg;
  bool right = text.starts_with("sysdef: ") && text.find('\n') == text.size() - 1;
  for (const std::string& word : words) right = right && text.find(word) != std::string::npos;
  return right;
}

}  // namespace test
