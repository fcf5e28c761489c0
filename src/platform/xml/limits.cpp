// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/limits.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

using std::string_view;

class Scan {
 public:
  Scan(string_view bytes, const ReadLimits& limits) : bytes_(bytes), limits_(limits) {}

  void Run() {
    for (at_ = bytes_.find('<'); at_ != string_view::npos; at_ = bytes_.find('<', at_))
      SkipMarkup();
  }

 private:
  void SkipMarkup() {
    const string_view rest = bytes_.substr(at_);
    if (rest.starts_with("<!--"))
      SkipPast("-->", 4);
    else if (rest.starts_with("<![CDATA["))
      SkipPast("]]>", 9);
    else if (rest.starts_with("<?"))
      SkipPast("?>", 2);
    else if (rest.starts_with("</") || rest.starts_with("<!"))
      ++at_;
    else
      SkipStartTag();
  }

  void SkipPast(string_view end, std::size_t from) {
    const auto found = bytes_.find(end, at_ + from);
    at_ = found == string_view::npos ? found : found + end.size();
  }

  void SkipStartTag() {
    if (++elements_ > limits_.elements)
      Refuse("more elements than the limit of ", limits_.elements);
    std::size_t attributes = 0;
    for (++at_; at_ < bytes_.size() && bytes_[at_] != '>' && bytes_[at_] != '<'; ++at_) {
      if (bytes_[at_] == '=' && ++attributes > limits_.attributesPerElement)
        Refuse("more attributes in an element than the limit of ", limits_.attributesPerElement);
      if (bytes_[at_] == '"' || bytes_[at_] == '\'') SkipQuoted();
    }
  }

  /// To the closing quote, or to the bytes' end without one.
  void SkipQuoted() {
    const auto end = bytes_.find(bytes_[at_], at_ + 1);
    at_ = end == string_view::npos ? bytes_.size() - 1 : end;
  }

  [[noreturn]] void Refuse(const char* text, std::size_t limit) const {
    const string_view before = bytes_.substr(0, std::min(at_, bytes_.size()));
    const long line = 1 + std::count(before.begin(), before.end(), '\n');
    throw XmlError(std::to_string(line) + ": " + text + std::to_string(limit), line);
  }

  string_view bytes_;
  const ReadLimits& limits_;
  std::size_t at_ = 0;
  std::size_t elements_ = 0;
};

std::string Lower(string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

/// The encoding that the XML declaration names, in lower case; empty without one.
std::string DeclaredEncoding(string_view bytes) {
  if (!bytes.starts_with("<?xml")) return {};
  const string_view declaration = bytes.substr(0, bytes.find("?>"));
  const auto name = declaration.find("encoding");
  const auto open = declaration.find_first_of("\"'", name);
  if (name == string_view::npos || open == string_view::npos) return {};
  const auto close = declaration.find(declaration[open], open + 1);
  return Lower(declaration.substr(open + 1, close - open - 1));
}

void CheckEncoding(string_view bytes) {
  constexpr string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  constexpr std::array<string_view, 7> known = {
      "", "utf-8", "utf8", "us-ascii", "iso-8859-1", "iso-8859-15", "windows-1252"};
  const std::string encoding = DeclaredEncoding(bytes);
  if (std::find(known.begin(), known.end(), encoding) == known.end())
    throw XmlError("1: the encoding is not supported, UTF-8 is expected", 1);
  const auto first = bytes.find_first_not_of(" \t\r\n");
  if (first == string_view::npos) throw XmlError("the document is empty");
  if (bytes[first] != '<' || bytes.find('\0') != string_view::npos)
    throw XmlError("1: this is not an XML document in UTF-8", 1);
}

}  // namespace

void CheckLimits(string_view bytes, const ReadLimits& limits) {
  if (bytes.size() > limits.bytes)
    throw XmlError("the document is longer than " + std::to_string(limits.bytes) + " bytes");
  CheckEncoding(bytes);
  Scan(bytes, limits).Run();
}

}  // namespace platform::xml
