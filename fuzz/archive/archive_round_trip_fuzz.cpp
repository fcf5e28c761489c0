// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "archive/xml_archive_exception.h"
#include "archive/xml_iarchive.h"
#include "archive/xml_oarchive.h"
#include "byte_archive.h"
#include "data_classes.h"

// The whole way: an object from the bytes, to a document, to text, parsed, to an object, and to
// text again. The two texts are the same, whatever the object holds; only a text that XML cannot
// carry is refused.

namespace {

using platform::xml::Document;
using platform::xml::TextForm;
using zel::archive::nvp;
using zel::archive::xml_archive_exception;
namespace flags = zel::archive::flags;

constexpr std::uint32_t kForms[] = {flags::kPageTransfer,
                                    flags::kPageTransfer & ~flags::kTolerateMissing, flags::kNoRoot,
                                    flags::kNoRoot | flags::kLongNames, flags::kArchive};

template <class Data>
std::string Stored(Data& data, std::uint32_t bits, TextForm form) {
  Document document;
  zel::archive::xml_oarchive archive(document, bits);
  archive << nvp("Data", data);
  archive.Finish();
  return document.ToText(form);
}

void Require(bool holds, const char* what, const std::string& text) {
  if (holds) return;
  std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
  std::abort();
}

template <class Data>
void GoRound(Data& data, std::uint32_t bits, TextForm form) {
  std::string text;
  try {
    text = Stored(data, bits, form);
  } catch (const xml_archive_exception& fault) {
    Require(fault.code() == xml_archive_exception::cannot_convert_data_to_text, fault.what(), {});
    return;
  }
  Data read;
  zel::archive::xml_iarchive archive(Document::Parse(text), bits);
  archive >> nvp("Data", read);
  Require(Stored(read, bits, form) == text, "read back as another object", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  fuzz::ByteArchive source(bytes, size);
  const std::uint32_t bits = kForms[source.Next() % std::size(kForms)];
  const TextForm form = source.Next() % 2 == 0 ? TextForm::kBare : TextForm::kIndented;
  fuzz::WithPageData(source.Next(), [&](auto data) {
    try {
      source >> nvp("Data", *data);
    } catch (const boost::archive::archive_exception&) {
      // The bytes ask for more entries than a fixed array has.
      return;
    }
    GoRound(*data, bits, form);
  });
  return 0;
}
