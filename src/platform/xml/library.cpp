// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/library.h"

#include <libxml/parser.h>
#include <libxml/xmlerror.h>
#include <libxslt/documents.h>
#include <libxslt/security.h>
#include <libxslt/xslt.h>
#include <libxslt/xsltutils.h>

#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <utility>

#include "platform/text/number.h"

namespace platform::xml {
namespace {

thread_local ErrorCollector* current = nullptr;

xmlParserInputPtr DenyEntity(const char*, const char*, xmlParserCtxtPtr) { return nullptr; }

xmlDocPtr DenyDocument(const xmlChar*, xmlDictPtr, int, void*, xsltLoadType) { return nullptr; }

void ForbidAll(xsltSecurityPrefsPtr preferences) {
  for (const auto option :
       {XSLT_SECPREF_READ_FILE, XSLT_SECPREF_WRITE_FILE, XSLT_SECPREF_CREATE_DIRECTORY,
        XSLT_SECPREF_READ_NETWORK, XSLT_SECPREF_WRITE_NETWORK})
    xsltSetSecurityPrefs(preferences, option, xsltSecurityForbid);
}

void OnStructured(void*, xmlErrorPtr error) {
  if (current != nullptr && error != nullptr) current->Add(*error);
}

__attribute__((format(printf, 2, 3))) void OnPrinted(void*, const char* format, ...) {
  if (current == nullptr) return;
  char piece[2048];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(piece, sizeof piece, format, arguments);
  va_end(arguments);
  current->AddPrinted(piece);
}

/// These two are the thread's own in libxml2.
void ListenOnThisThread() {
  xmlSetStructuredErrorFunc(nullptr, OnStructured);
  xmlSetGenericErrorFunc(nullptr, OnPrinted);
}

}  // namespace

void PrepareLibraries() {
  static std::once_flag once;
  std::call_once(once, [] {
    xmlInitParser();
    xmlSetExternalEntityLoader(DenyEntity);
    xsltInit();
    xsltSetLoaderFunc(DenyDocument);
    // Kept for the process's whole life: stylesheets are compiled at any time.
    static const xsltSecurityPrefsPtr preferences = xsltNewSecurityPrefs();
    ForbidAll(preferences);
    xsltSetDefaultSecurityPrefs(preferences);
    xsltSetGenericErrorFunc(nullptr, OnPrinted);
  });
}

ErrorCollector::ErrorCollector() : outer_(current) {
  PrepareLibraries();
  current = this;
  ListenOnThisThread();
}

ErrorCollector::~ErrorCollector() { current = outer_; }

ErrorCollector* ErrorCollector::Current() noexcept { return current; }

std::string ErrorCollector::Message(std::string_view otherwise) const {
  if (text_.empty()) return std::string(otherwise);
  return line_ > 0 ? std::to_string(line_) + ": " + text_ : text_;
}

void ErrorCollector::Settle(std::string text, long line) {
  if (settled_) return;
  text_ = std::move(text);
  line_ = line;
  settled_ = true;
}

void ErrorCollector::Add(const _xmlError& error) {
  if (error.level < XML_ERR_ERROR) return;
  Take(error.message != nullptr ? error.message : "unknown error", error.line);
}

void ErrorCollector::AddPrinted(std::string_view piece) {
  printed_ += piece;
  for (auto end = printed_.find('\n'); end != std::string::npos; end = printed_.find('\n')) {
    const std::string line = printed_.substr(0, end);
    printed_.erase(0, end + 1);
    // The libraries tell the place first: "compilation error: file NAME line 3 element sort".
    const bool isPlace = line.find("error") != std::string::npos &&
                         (line.find(": file ") != std::string::npos ||
                          line.find(": element ") != std::string::npos || line.ends_with("error"));
    const auto at = line.rfind(" line ");
    if (isPlace)
      printedLine_ = at == std::string::npos ? 0 : LeadingInteger(line.substr(at + 6));
    else
      Take(line, std::exchange(printedLine_, 0));
  }
}

void ErrorCollector::Take(std::string_view line, long number) {
  if (!text_.empty() || settled_) return;
  text_ = OneLine(line);
  line_ = number;
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const bool isBlank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
    if (!isBlank)
      line += c;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

}  // namespace platform::xml
