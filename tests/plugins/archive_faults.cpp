// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// A library with an archive of its own, whose faults its users catch.

#include "archive/export.h"
#include "archive/xml_archive_exception.h"

namespace {

struct Exported {
  template <class Archive>
  void serialize(Archive&, unsigned) {}
};

const zel::archive::class_export<Exported> exportExported{"Exported"};

}  // namespace

extern "C" {

void ThrowXmlFault() {
  using zel::archive::xml_archive_exception;
  throw xml_archive_exception(xml_archive_exception::message_in_exception, "from the library",
                              "a/b");
}

void ThrowArchiveFault() {
  using boost::archive::archive_exception;
  throw archive_exception(archive_exception::unregistered_class);
}

/// How many classes the library's registry has.
unsigned CountExported() {
  return static_cast<unsigned>(zel::archive::export_registry::instance().classes().size());
}
}
