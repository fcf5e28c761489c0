// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/source.h"

#include "platform/filters/filter_error.h"

namespace platform::filters {

std::size_t ReadSource(std::istream& source, char* to, std::size_t size) {
  if (source.eof()) return 0;
  source.read(to, static_cast<std::streamsize>(size));
  if (source.bad() || (source.fail() && !source.eof()))
    throw FilterError("the container cannot be read");
  return static_cast<std::size_t>(source.gcount());
}

bool IsAtEnd(std::istream& source) {
  return source.eof() || source.peek() == std::istream::traits_type::eof();
}

}  // namespace platform::filters
