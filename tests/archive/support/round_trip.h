// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "archive/xml_iarchive.h"
#include "archive/xml_oarchive.h"
#include "platform/xml/document.h"

namespace archive_test {

using platform::xml::Document;
using platform::xml::TextForm;
using zel::archive::nvp;
namespace flags = zel::archive::flags;

/// An object with one member, "value".
template <class T>
struct Value {
  T value{};
  bool operator==(const Value&) const = default;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("value", value);
  }
};

/// The object as the output archive writes it, as bare text.
template <class T>
std::string Written(T& object, const char* name = "ModuleOutputs",
                    std::uint32_t bits = flags::kPageTransfer) {
  Document document;
  zel::archive::xml_oarchive archive(document, bits);
  archive << nvp(name, object);
  archive.Finish();
  return document.ToText(TextForm::kBare);
}

/// Reads the object from text.
template <class T>
void Read(const std::string& text, T& object, const char* name = "Inputs",
          std::uint32_t bits = flags::kPageTransfer) {
  zel::archive::xml_iarchive archive(Document::Parse(text), bits);
  archive >> nvp(name, object);
}

/// A T read from an element "Inputs" with that content.
template <class T>
T ReadContent(const std::string& content, T object = T()) {
  Read("<Inputs>" + content + "</Inputs>", object);
  return object;
}

/// Reads the content of an element and expects it to be written again as it stands. The content is
/// literal, in stored order, and none of its values is a default, so that a member that is not
/// stored shows.
template <class T>
T ExpectStored(const std::string& content) {
  T object = ReadContent<T>(content);
  EXPECT_EQ(Written(object), "<ModuleOutputs>" + content + "</ModuleOutputs>");
  return object;
}

}  // namespace archive_test
