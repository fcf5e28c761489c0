// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <exception>
#include <utility>

#include "archive/nvp.h"
#include "archive/xml_iarchive.h"
#include "archive/xml_oarchive.h"
#include "framework/archive_failure.h"
#include "platform/xml/document.h"

namespace Framework {

/// Runs the XML archives over one document for one data object. A failure is told on the standard
/// error stream and given back as false; it never leaves as an exception.
template <class Data>
class XMLDOMMgr {
 public:
  explicit XMLDOMMgr(platform::xml::Document document) : document_(std::move(document)) {}

  /// Reads `data` as the document's top-level element `name`.
  bool Load(Data& data, const char* name) {
    return Guard(ArchiveDirection::kReading, [&] {
      zel::archive::xml_iarchive archive(document_, Flags());
      archive >> zel::archive::nvp(name, data);
    });
  }

  /// Writes `data` as the document's element `name`.
  bool Store(Data& data, const char* name) {
    return Guard(ArchiveDirection::kWriting, [&] {
      zel::archive::xml_oarchive archive(document_, Flags());
      archive << zel::archive::nvp(name, data);
      archive.Finish();
    });
  }

 private:
  [[nodiscard]] unsigned Flags() const { return plain_ ? 0x00000001u : 0x78000001u; }

  template <class Run>
  static bool Guard(ArchiveDirection direction, Run run) {
    try {
      run();
      return true;
    } catch (...) {
      ReportArchiveFailure(direction, std::current_exception());
      return false;
    }
  }

  platform::xml::Document document_;
  bool plain_ = false;
};

}  // namespace Framework
