// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "framework/archive_failure.h"

#include <iostream>
#include <string>

#include "archive/archive_exception.h"
#include "host/project/ost_exception.h"
#include "platform/xml/xml_error.h"

namespace Framework {

namespace {

// The host's own exceptions may quote a document; this much of their text is told.
constexpr std::size_t kLongestText = 256;

void Tell(const std::string& text) { std::cerr << "Error: " << text << std::endl; }

}  // namespace

void ReportArchiveFailure(ArchiveDirection direction, const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const boost::archive::archive_exception& error) {
    Tell(error.what());
  } catch (const OstException& error) {
    Tell(std::string(error.what()).substr(0, kLongestText));
  } catch (const platform::xml::XmlError& error) {
    Tell(std::string(error.what()).substr(0, kLongestText));
  } catch (...) {
    std::cerr << (direction == ArchiveDirection::kReading ? "Error: exception reading archive"
                                                          : "Error: exception writing archive")
              << std::flush;
  }
}

}  // namespace Framework
