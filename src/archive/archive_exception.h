// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <exception>

namespace boost::archive {

/// A fault of the archive framework: a code and its fixed text. Copies share nothing that can
/// fail, so that one can be caught in another module, kept by std::exception_ptr and thrown again.
class archive_exception : public std::exception {
 public:
  enum exception_code : int {
    no_exception = 0,
    other_exception = 1,
    unregistered_class = 2,
    invalid_signature = 3,
    unsupported_version = 4,
    pointer_conflict = 5,
    incompatible_native_format = 6,
    array_size_too_short = 7,
    stream_error = 8,
    invalid_class_name = 9,
    unregistered_cast = 10
  };

  explicit archive_exception(exception_code code) noexcept : code_(code) {}
  archive_exception(const archive_exception&) noexcept = default;
  archive_exception& operator=(const archive_exception&) noexcept = default;
  ~archive_exception() override;

  [[nodiscard]] exception_code code() const noexcept { return code_; }
  /// The text of the code; "programming error" for a number that is none.
  [[nodiscard]] const char* what() const noexcept override;

 private:
  exception_code code_;
};

}  // namespace boost::archive
