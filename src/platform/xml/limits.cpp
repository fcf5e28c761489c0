// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/limits.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/xml/document.h"
#include "platform/xml/source_text.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

using std::string_view;

// libxml2's own bounds. Behind a longer comment it would read the rest as markup.
constexpr std::size_t kLongestMarkup = 10'000'000;
constexpr std::size_t kDeepest = 256;
// Every prefix is looked for among all the namespaces in scope, one by one.
constexpr std::size_t kNamespacesInScope = 256;

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool StartsName(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':';
}

class Scan {
 public:
  Scan(string_view text, const ReadLimits& limits) : text_(text), limits_(limits) {}

  void Run() {
    for (at_ = text_.find('<'); at_ < text_.size(); at_ = text_.find('<', at_)) Markup();
  }

 private:
  void Markup() {
    const string_view rest = text_.substr(at_);
    if (rest.starts_with("<!--")) {
      SkipPast("-->", 4);
    } else if (rest.starts_with("<![CDATA[")) {
      SkipPast("]]>", 9);
    } else if (rest.starts_with("<?") && rest.size() > 2 && StartsName(rest[2])) {
      SkipPast("?>", 2);
    } else if (rest.starts_with("<!DOCTYPE")) {
      Fail(at_, "a document type declaration is not allowed");
    } else if (rest.starts_with("</")) {
      ++at_;
      if (!scopes_.empty()) LeaveScope();
    } else {
      StartTag();
    }
  }

  void SkipPast(string_view end, std::size_t from) {
    CountNode();
    const auto found = text_.find(end, at_ + from);
    if (std::min(found, text_.size()) - at_ > kLongestMarkup)
      Refuse("a comment, instruction or character data longer than ", kLongestMarkup);
    at_ = found == string_view::npos ? text_.size() : found + end.size();
  }

  void StartTag() {
    CountNode();
    attributes_ = namespaces_ = 0;
    for (++at_; at_ < text_.size() && text_[at_] != '>' && text_[at_] != '<'; ++at_)
      if (text_[at_] == '=') Attribute();
    if (at_ < text_.size() && text_[at_] == '>' && text_[at_ - 1] != '/') EnterScope();
  }

  void Attribute() {
    CountNode();
    if (++attributes_ > limits_.attributesPerElement)
      Refuse("more attributes in an element than ", limits_.attributesPerElement);
    if (IsNamespace()) ++namespaces_;
    while (at_ + 1 < text_.size() && IsBlank(text_[at_ + 1])) ++at_;
    if (at_ + 1 >= text_.size() || (text_[at_ + 1] != '"' && text_[at_ + 1] != '\'')) return;
    const auto end = text_.find(text_[at_ + 1], at_ + 2);
    const auto value = text_.substr(at_ + 2, end - at_ - 2);
    // The parser leaves the value there and begins another tag.
    if (const auto open = value.find('<'); open != string_view::npos)
      Fail(at_ + 2 + open, "'<' in an attribute's value");
    at_ = std::min(end, text_.size());
  }

  /// Whether the name before the equals sign here is xmlns or xmlns:PREFIX.
  [[nodiscard]] bool IsNamespace() const {
    string_view before = text_.substr(0, at_);
    while (IsBlank(before.back())) before.remove_suffix(1);
    const auto name = before.substr(before.find_last_of(" \t\r\n\"'<") + 1);
    return name == "xmlns" || name.starts_with("xmlns:");
  }

  void EnterScope() {
    scopes_.push_back(namespaces_);
    inScope_ += namespaces_;
    if (scopes_.size() > kDeepest) Refuse("elements nested deeper than ", kDeepest);
    if (inScope_ > kNamespacesInScope) Refuse("more namespaces in scope than ", kNamespacesInScope);
  }

  void LeaveScope() {
    inScope_ -= scopes_.back();
    scopes_.pop_back();
  }

  void CountNode() {
    if (++nodes_ > limits_.elements) Refuse("more elements and attributes than ", limits_.elements);
  }

  [[noreturn]] void Refuse(const char* what, std::size_t limit) const {
    Fail(at_, what + std::to_string(limit));
  }

  [[noreturn]] void Fail(std::size_t at, const std::string& fault) const {
    const long line = LineOf(text_, at);
    throw XmlError(std::to_string(line) + ": " + fault, line);
  }

  string_view text_;
  const ReadLimits& limits_;
  std::size_t at_ = 0;
  std::size_t nodes_ = 0;
  // Of the tag that is being read.
  std::size_t attributes_ = 0;
  std::size_t namespaces_ = 0;
  // Namespaces that each open element declares, and their sum.
  std::vector<std::size_t> scopes_;
  std::size_t inScope_ = 0;
};

}  // namespace

void CheckLimits(string_view text, const ReadLimits& limits) { Scan(text, limits).Run(); }

}  // namespace platform::xml
