// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <string>

#include "archive/archive_exception.h"

namespace zel::archive {

/// A fault of the XML archives: a code and its fixed text; message_in_exception carries a text of
/// its own. To a handler of the base class it is an other_exception.
class xml_archive_exception : public boost::archive::archive_exception {
 public:
  enum exception_code : int {
    no_exception = 0,
    other_exception = 1,
    cannot_convert_data_to_text = 2,
    cannot_convert_text_to_data = 3,
    message_in_exception = 4,
    missing_element = 5,
    element_mismatch = 6,
    missing_curnode = 7,
    missing_attribute = 8
  };

  explicit xml_archive_exception(exception_code code) noexcept;
  /// `message` is the text of message_in_exception. `where` says which element, from the document
  /// element down with '/' between the names, and, after " = ", which text was at fault.
  xml_archive_exception(exception_code code, std::string message, std::string where = {});
  xml_archive_exception(const xml_archive_exception&) noexcept = default;
  xml_archive_exception& operator=(const xml_archive_exception&) noexcept = default;
  ~xml_archive_exception() override;

  [[nodiscard]] exception_code code() const noexcept { return code_; }
  [[nodiscard]] const char* what() const noexcept override;
  /// Empty when the fault has no place.
  [[nodiscard]] const char* where() const noexcept;

 private:
  struct texts {
    std::string message;
    std::string where;
  };
  exception_code code_;
  std::shared_ptr<const texts> texts_;
};

}  // namespace zel::archive
