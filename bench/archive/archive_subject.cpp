// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <string>

#include "archive/xml_iarchive.h"
#include "archive/xml_oarchive.h"
#include "measure.h"
#include "platform/xml/document.h"
#include "subjects.h"

namespace bench {

namespace {

using platform::xml::Document;
using zel::archive::nvp;
constexpr auto kFlags = zel::archive::flags::kPageTransfer;

Document Stored(Waveforms& data) {
  Document document;
  zel::archive::xml_oarchive archive(document, kFlags);
  archive << nvp(kElement, data);
  archive.Finish();
  return document;
}

Waveforms Loaded(const Document& document) {
  Waveforms data;
  zel::archive::xml_iarchive archive(document, kFlags);
  archive >> nvp(kElement, data);
  return data;
}

struct StoredText {
  Document document;
  std::string text;
};

StoredText StoredAsText(Waveforms& data) {
  Document document = Stored(data);
  std::string text = document.ToText(platform::xml::TextForm::kBare);
  return {document, text};
}

}  // namespace

void RegisterArchive() {
  RegisterStore("archive store", [](Waveforms& data) { return Stored(data); });
  RegisterStore("archive store with text", [](Waveforms& data) { return StoredAsText(data); });
  RegisterLoad(
      "archive load", [](Waveforms& data) { return Stored(data); },
      [](const Document& document) { return Loaded(document); });
  RegisterLoad(
      "archive load with text",
      [](Waveforms& data) { return FromChild([&] { return StoredAsText(data).text; }); },
      [](const std::string& text) { return Loaded(Document::Parse(text)); });
}

}  // namespace bench
