// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/basic_archive.h"

namespace zel::archive {

const char* attribute_name(class_info info, std::uint32_t flags) noexcept {
  const bool is_long = (flags & flags::kLongNames) != 0;
  switch (info) {
    case class_info::class_id:
      return is_long ? "class_id" : "clsid";
    case class_info::class_id_reference:
      return is_long ? "class_id_reference" : "clsref";
    case class_info::object_id:
      return is_long ? "object_id" : "objid";
    case class_info::object_id_reference:
      return is_long ? "object_id_reference" : "objref";
    case class_info::tracking_level:
      return is_long ? "tracking_level" : "trklvl";
    case class_info::version:
      return "version";
    case class_info::class_name:
      return is_long ? "class_name" : "clsnm";
  }
  return "";
}

}  // namespace zel::archive
