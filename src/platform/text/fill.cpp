// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/text/fill.h"

namespace platform {

std::string Fill(std::string_view pattern, std::initializer_list<std::string> values) {
  std::string filled;
  for (const std::string& value : values) {
    const std::size_t start = pattern.find('%');
    if (start == std::string_view::npos) {
      break;
    }
    filled.append(pattern.substr(0, start)).append(value);
    const std::size_t end = pattern.find_first_of("dfgsx", start);
    pattern.remove_prefix(end == std::string_view::npos ? pattern.size() : end + 1);
  }
  return filled.append(pattern);
}

}  // namespace platform
