// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/archive_exception.h"

namespace boost::archive {

// Defined here so that the vtable and the type information have one home in each module.
archive_exception::~archive_exception() = default;

const char* archive_exception::what() const noexcept {
  switch (code_) {
    case no_exception:
      return "uninitialized exception";
    case other_exception:
      return "unknown derived exception";
    case unregistered_class:
      return "unregistered class";
    case invalid_signature:
      return "invalid signature";
    case unsupported_version:
      return "unsupported version";
    case pointer_conflict:
      return "pointer conflict";
    case incompatible_native_format:
      return "incompatible native format";
    case array_size_too_short:
      return "array size too short";
    case stream_error:
      return "stream error";
    case invalid_class_name:
      return "class name too long";
    case unregistered_cast:
      return "unregistered void cast";
  }
  return "programming error";
}

}  // namespace boost::archive
