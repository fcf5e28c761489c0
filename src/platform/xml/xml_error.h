// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <stdexcept>
#include <string>

namespace platform::xml {

/// A document, stylesheet or schema that cannot be taken, or a tree operation that failed.
/// what() is one line; a line number, where there is one, is part of it.
class XmlError : public std::runtime_error {
 public:
  explicit XmlError(const std::string& message, long line = 0)
      : std::runtime_error(message), line_(line) {}

  /// The line of the input, counted from 1; 0 when the fault has no place.
  [[nodiscard]] long Line() const noexcept { return line_; }

 private:
  long line_;
};

/// The fault of a file on one line: "FILE:LINE: MESSAGE", or "FILE: MESSAGE" without a line.
[[nodiscard]] inline std::string Located(const std::string& file, const XmlError& error) {
  return file + (error.Line() > 0 ? ":" : ": ") + error.what();
}

}  // namespace platform::xml
