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
#include "platform/xml/run_meter.h"

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

/// libxslt's messages often begin with the name of its function.
std::string_view WithoutFunction(std::string_view line) {
  const auto colon = line.find(": ");
  const bool isNamed = line.starts_with("xslt") && colon != line.npos;
  return isNamed ? line.substr(colon + 2) : line;
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
    RunMeter::Install();
    xmlInitParser();
    xmlSetExternalEntityLoader(DenyEntity);
    xsltInit();
    xsltSetLoaderFunc(DenyDocument);
    // Kept for the process's whole life: stylesheets are compiled at any time.
    static const xsltSecurityPrefsPtr preferences = xsltNewSecurityPrefs();
    ForbidAll(preferences);
    xsltSetDefaultSecurityPrefs(preferences);
    xsltSetGenericErrorFunc(nullptr, OnPrinted);
    ListenOnThisThread();
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
  if (text_.empty()) return said_.empty() ? std::string(otherwise) : said_;
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
  std::string text = OneLine(error.message != nullptr ? error.message : "unknown error");
  if (error.domain == XML_FROM_XPATH && error.str1 != nullptr) text += ": " + OneLine(error.str1);
  Take(std::move(text), error.line);
}

void ErrorCollector::AddPrinted(std::string_view piece) {
  printed_ += piece;
  for (auto end = printed_.find('\n'); end != std::string::npos; end = printed_.find('\n')) {
    AddPrintedLine(std::string_view(printed_).substr(0, end));
    printed_.erase(0, end + 1);
  }
}

void ErrorCollector::AddPrintedLine(std::string_view line) {
  // "compilation error: file NAME line 3 element sort", "runtime error: element sort", "error".
  const auto colon = line.find("error: ");
  const bool isPlace = line == "error" || line == "runtime error" || line == "compilation error" ||
                       (colon != line.npos && (line.substr(colon + 7).starts_with("file ") ||
                                               line.substr(colon + 7).starts_with("element ")));
  if (isPlace) {
    const auto at = line.rfind(" line ");
    place_ = at == line.npos ? 0 : LeadingInteger(line.substr(at + 6));
    knowsPlace_ = true;
  } else if (std::exchange(knowsPlace_, false)) {
    Take(OneLine(WithoutFunction(line)), place_);
  } else {
    said_ = OneLine(line);
  }
}

void ErrorCollector::Take(std::string text, long line) {
  if (settled_) return;
  if (text_.empty())
    text_ = std::move(text);
  else if (line_ > 0)
    return;
  // XPath knows no line; libxslt's own words that follow do.
  line_ = line;
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
