// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/source_map.h"

#include <algorithm>
#include <string>

namespace platform::xml {

namespace {

/// Walks markup. Text, comments, instructions and character data sections are stepped over.
class Scanner {
 public:
  Scanner(std::string_view bytes, std::size_t from) : bytes_(bytes), at_(from) {}

  SourceElement Next(int depth) {
    SeekTag();
    return Element(depth);
  }

 private:
  /// Moves to the '<' of the next start or end tag.
  void SeekTag() {
    while (true) {
      at_ = Find("<");
      if (StartsWith("<!--")) {
        at_ = Find("-->") + 3;
      } else if (StartsWith("<![CDATA[")) {
        at_ = Find("]]>") + 3;
      } else if (StartsWith("<?")) {
        at_ = Find("?>") + 2;
      } else {
        return;
      }
    }
  }

  SourceElement Element(int depth) {
    SourceElement element;
    element.begin = at_;
    const bool empty = SkipTag();
    element.contentBegin = element.contentEnd = element.end = at_;
    if (empty) return element;
    if (depth > 0) {
      ReadChildren(element, depth);
    } else {
      SkipContent();
    }
    element.contentEnd = at_;
    SkipTag();
    element.end = at_;
    return element;
  }

  void ReadChildren(SourceElement& element, int depth) {
    for (SeekTag(); !StartsWith("</"); SeekTag()) {
      element.children.push_back(Element(depth - 1));
    }
  }

  /// Moves to the end tag that closes the open element, without keeping what is between.
  void SkipContent() {
    for (std::size_t open = 0;;) {
      SeekTag();
      if (StartsWith("</")) {
        if (open-- == 0) return;
        SkipTag();
      } else if (!SkipTag()) {
        ++open;
      }
    }
  }

  /// Moves behind the tag; true for an empty-element tag. A quoted value may hold '>'.
  bool SkipTag() {
    char quote = 0;
    for (++at_; at_ < bytes_.size(); ++at_) {
      const char c = bytes_[at_];
      if (quote) {
        if (c == quote) quote = 0;
      } else if (c == '"' || c == '\'') {
        quote = c;
      } else if (c == '>') {
        return bytes_[at_++ - 1] == '/';
      }
    }
    return true;
  }

  [[nodiscard]] bool StartsWith(std::string_view text) const {
    return bytes_.substr(at_, text.size()) == text;
  }
  [[nodiscard]] std::size_t Find(std::string_view text) const {
    const auto found = bytes_.find(text, at_);
    return found == std::string_view::npos ? bytes_.size() - text.size() : found;
  }

  std::string_view bytes_;
  std::size_t at_;
};

}  // namespace

SourceElement MapSource(std::string_view bytes, std::size_t from, int depth) {
  return Scanner(bytes, from).Next(depth);
}

bool IsUtf8Source(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return false;
  const auto declaration = bytes.substr(0, bytes.find("?>"));
  const auto at = declaration.find("encoding");
  if (!bytes.substr(0, 8).ends_with("<?xml") && !bytes.starts_with("<?xml")) return true;
  if (at == std::string_view::npos) return true;
  const auto open = declaration.find_first_of("\"'", at);
  if (open == std::string_view::npos) return true;
  const auto close = declaration.find(declaration[open], open + 1);
  std::string name(declaration.substr(open + 1, close - open - 1));
  std::transform(name.begin(), name.end(), name.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return name == "UTF-8" || name == "US-ASCII";
}

}  // namespace platform::xml
