// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/xml_archive_exception.h"

namespace zel::archive {

using base = boost::archive::archive_exception;

xml_archive_exception::xml_archive_exception(exception_code code) noexcept
    : base(base::other_exception), code_(code) {}

xml_archive_exception::xml_archive_exception(exception_code code, std::string message,
                                             std::string where)
    : base(base::other_exception),
      code_(code),
      texts_(std::make_shared<const texts>(texts{std::move(message), std::move(where)})) {}

xml_archive_exception::~xml_archive_exception() = default;

const char* xml_archive_exception::what() const noexcept {
  switch (code_) {
    case no_exception:
      return "uninitialized exception";
    case other_exception:
      return "unknown derived exception";
    case cannot_convert_data_to_text:
      return "can't convert data to text";
    case cannot_convert_text_to_data:
      return "can't convert text to data";
    case message_in_exception:
      return texts_ ? texts_->message.c_str() : "";
    case missing_element:
      return "missing element";
    case element_mismatch:
      return "element mismatch";
    case missing_curnode:
      return "missing curnode";
    case missing_attribute:
      return "missing attribute";
  }
  return "programming error";
}

const char* xml_archive_exception::where() const noexcept {
  return texts_ ? texts_->where.c_str() : "";
}

}  // namespace zel::archive
