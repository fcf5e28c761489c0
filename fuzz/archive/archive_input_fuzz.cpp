// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "archive/export.h"
#include "data_classes.h"
#include "platform/xml/xml_error.h"

// The input archive over any XML there is: the first byte chooses the flags, the second the class,
// the rest is the document. Whatever it says, the archive reads it or throws a fault of its own.

namespace {

using platform::xml::Document;
using zel::archive::nvp;
using zel::archive::xml_iarchive;
namespace flags = zel::archive::flags;

const zel::archive::class_export<fuzz::Node> exportNode{"Node"};
const zel::archive::class_export<fuzz::NamedNode, fuzz::Node> exportNamed{"NamedNode"};

constexpr std::uint32_t kForms[] = {flags::kPageTransfer,
                                    flags::kPageTransfer & ~flags::kTolerateMissing,
                                    flags::kNoRoot | flags::kTolerateMissing,
                                    flags::kNoRoot | flags::kLongNames | flags::kTolerateMissing,
                                    flags::kTolerateMissing,
                                    flags::kLongNames};

template <class Data>
void Read(const Document& document, std::uint32_t bits, Data& data) {
  const std::string name(document.Root().BaseName());
  try {
    xml_iarchive archive(document, bits);
    try {
      archive >> nvp(name.c_str(), data);
    } catch (...) {
      archive.delete_created_pointers();
      throw;
    }
    archive.delete_created_pointers();
  } catch (const boost::archive::archive_exception&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size < 2) return 0;
  const std::uint32_t bits = kForms[bytes[0] % std::size(kForms)];
  Document document;
  try {
    document =
        Document::Parse(std::string_view(reinterpret_cast<const char*>(bytes) + 2, size - 2));
  } catch (const platform::xml::XmlError&) {
    return 0;
  }
  if (bytes[1] % 9 == 8) {
    fuzz::Graph graph;
    Read(document, bits, graph);
    return 0;
  }
  fuzz::WithPageData(bytes[1] % 9, [&](auto data) { Read(document, bits, *data); });
  return 0;
}
