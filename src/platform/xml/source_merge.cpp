// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/source_merge.h"

#include <libxml/tree.h>

#include <unordered_map>
#include <vector>

#include "platform/text/number.h"

namespace platform::xml {

namespace {

std::string_view View(const xmlChar* text) {
  return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

std::string QualifiedName(const xmlChar* name, const xmlNs* space) {
  if (!space || !space->prefix) return std::string(View(name));
  return std::string(View(space->prefix)) + ":" + std::string(View(name));
}

/// An attribute's value; a value in pieces (character references) is put together.
std::string Value(const xmlAttr* attribute) {
  std::string value;
  for (const xmlNode* piece = attribute->children; piece; piece = piece->next) {
    value += View(piece->content);
  }
  return value;
}

bool SameNumber(std::string_view a, std::string_view b) {
  const auto left = ParseNumber(a);
  const auto right = ParseNumber(b);
  return left && right && *left == *right;
}

bool SameSpace(const xmlNs* a, const xmlNs* b) {
  return View(a ? a->href : nullptr) == View(b ? b->href : nullptr);
}

const xmlAttr* FindAttribute(const xmlNode* node, const xmlAttr* like) {
  for (const xmlAttr* found = node->properties; found; found = found->next) {
    if (View(found->name) == View(like->name) && SameSpace(found->ns, like->ns)) return found;
  }
  return nullptr;
}

int CountAttributes(const xmlNode* node) {
  int count = 0;
  for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next) ++count;
  return count;
}

bool SameValue(const xmlNode* node, const xmlAttr* a, const xmlAttr* b,
               const NumericFields& numbers) {
  const std::string left = Value(a);
  const std::string right = Value(b);
  return left == right ||
         (numbers.Contains(View(node->name), View(a->name)) && SameNumber(left, right));
}

bool SameAttributes(const xmlNode* a, const xmlNode* b, const NumericFields& numbers) {
  if (CountAttributes(a) != CountAttributes(b)) return false;
  for (const xmlAttr* attribute = a->properties; attribute; attribute = attribute->next) {
    const xmlAttr* other = FindAttribute(b, attribute);
    if (!other || !SameValue(a, attribute, other, numbers)) return false;
  }
  return true;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool IsText(const xmlNode* node) {
  return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
}

bool HasElements(const xmlNode* node) {
  for (const xmlNode* child = node->children; child; child = child->next) {
    if (child->type == XML_ELEMENT_NODE) return true;
  }
  return false;
}

/// The text between elements, without what is only layout.
std::string OwnText(const xmlNode* node) {
  std::string text;
  for (const xmlNode* child = node->children; child; child = child->next) {
    if (IsText(child)) text += View(child->content);
  }
  return HasElements(node) && IsBlank(text) ? std::string() : text;
}

const xmlNode* NextElement(const xmlNode* node) {
  while (node && node->type != XML_ELEMENT_NODE) node = node->next;
  return node;
}

bool Same(const xmlNode* a, const xmlNode* b, const NumericFields& numbers) {
  if (View(a->name) != View(b->name) || !SameSpace(a->ns, b->ns)) return false;
  if (!SameAttributes(a, b, numbers) || OwnText(a) != OwnText(b)) return false;
  const xmlNode* left = NextElement(a->children);
  const xmlNode* right = NextElement(b->children);
  while (left && right) {
    if (!Same(left, right, numbers)) return false;
    left = NextElement(left->next);
    right = NextElement(right->next);
  }
  return !left && !right;
}

void Escape(std::string& out, std::string_view text, bool inAttribute) {
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += inAttribute ? "&quot;" : "\"";
        break;
      case '\r':
        out += "&#13;";
        break;
      case '\n':
        out += inAttribute ? "&#10;" : "\n";
        break;
      case '\t':
        out += inAttribute ? "&#9;" : "\t";
        break;
      default:
        out += c;
    }
  }
}

std::vector<const xmlNode*> Elements(const xmlNode* node) {
  std::vector<const xmlNode*> found;
  for (const xmlNode* child = NextElement(node->children); child;
       child = NextElement(child->next)) {
    found.push_back(child);
  }
  return found;
}

class Writer {
 public:
  Writer(std::string_view bytes, const NumericFields& numbers) : bytes_(bytes), numbers_(numbers) {}

  void Merge(const xmlNode* now, const xmlNode* before, const SourceElement& place, int level) {
    if (Same(now, before, numbers_)) {
      out_ += bytes_.substr(place.begin, place.end - place.begin);
      return;
    }
    const auto children = Elements(now);
    if (children.empty() || place.children.empty() || !OwnText(now).empty()) {
      Write(now, level, before);
      return;
    }
    MergeStartTag(now, before, place);
    MergeChildren(children, before, place, level);
    out_ += bytes_.substr(place.contentEnd, place.end - place.contentEnd);
  }

  /// Writes an element anew; `before`, if any, lends its spelling of equal numbers.
  void Write(const xmlNode* now, int level, const xmlNode* before) {
    StartTag(now, before);
    const auto children = Elements(now);
    const std::string text = OwnText(now);
    if (children.empty() && text.empty()) {
      out_ += "/>";
      return;
    }
    out_ += '>';
    if (!text.empty()) {
      WriteMixed(now);
    } else {
      for (const xmlNode* child : children) {
        NewLine(level + 1);
        Write(child, level + 1, nullptr);
      }
      NewLine(level);
    }
    out_ += "</" + QualifiedName(now->name, now->ns) + ">";
  }

  std::string Take() { return std::move(out_); }

 private:
  void NewLine(int level) {
    out_ += '\n';
    out_.append(static_cast<std::size_t>(level) * 2, ' ');
  }

  /// Text with elements in it is written without layout of ours.
  void WriteMixed(const xmlNode* node) {
    for (const xmlNode* child = node->children; child; child = child->next) {
      if (IsText(child)) Escape(out_, View(child->content), false);
      if (child->type == XML_ELEMENT_NODE) {
        StartTag(child, nullptr);
        out_ += '>';
        WriteMixed(child);
        out_ += "</" + QualifiedName(child->name, child->ns) + ">";
      }
    }
  }

  void StartTag(const xmlNode* now, const xmlNode* before) {
    out_ += "<" + QualifiedName(now->name, now->ns);
    for (const xmlNs* space = now->nsDef; space; space = space->next) {
      out_ += space->prefix ? " xmlns:" + std::string(View(space->prefix)) : " xmlns";
      out_ += "=\"";
      Escape(out_, View(space->href), true);
      out_ += '"';
    }
    for (const xmlAttr* attribute = now->properties; attribute; attribute = attribute->next) {
      out_ += " " + QualifiedName(attribute->name, attribute->ns) + "=\"";
      Escape(out_, Spelling(now, attribute, before), true);
      out_ += '"';
    }
  }

  std::string Spelling(const xmlNode* now, const xmlAttr* attribute, const xmlNode* before) {
    std::string value = Value(attribute);
    if (!numbers_.Contains(View(now->name), View(attribute->name))) return value;
    const xmlAttr* old = before ? FindAttribute(before, attribute) : nullptr;
    if (old && SameNumber(value, Value(old))) return Value(old);
    const auto number = ParseNumber(value);
    return number ? ShortestText(*number) : value;
  }

  void MergeStartTag(const xmlNode* now, const xmlNode* before, const SourceElement& place) {
    if (SameAttributes(now, before, numbers_)) {
      out_ += bytes_.substr(place.begin, place.contentBegin - place.begin);
      return;
    }
    StartTag(now, before);
    out_ += '>';
  }

  void MergeChildren(const std::vector<const xmlNode*>& children, const xmlNode* before,
                     const SourceElement& place, int level) {
    const auto old = Elements(before);
    const auto partner = Pair(children, old);
    for (std::size_t i = 0; i < children.size(); ++i) {
      if (partner[i] == kNone) {
        out_ += Lead(place, level + 1);
        Write(children[i], level + 1, nullptr);
        continue;
      }
      const std::size_t k = partner[i];
      const std::size_t from = k == 0 ? place.contentBegin : place.children[k - 1].end;
      out_ += bytes_.substr(from, place.children[k].begin - from);
      Merge(children[i], old[k], place.children[k], level + 1);
    }
    const std::size_t last = place.children.back().end;
    out_ += bytes_.substr(last, place.contentEnd - last);
  }

  /// What stands before a new child: the layout before its first sibling.
  std::string Lead(const SourceElement& place, int level) const {
    const auto lead =
        bytes_.substr(place.contentBegin, place.children.front().begin - place.contentBegin);
    if (IsBlank(lead)) return std::string(lead);
    return "\n" + std::string(static_cast<std::size_t>(level) * 2, ' ');
  }

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// For each element of `now` the element of `old` it carries on, in increasing order: the equal
  /// ones first, then, between two of those, the ones of equal name in turn.
  std::vector<std::size_t> Pair(const std::vector<const xmlNode*>& now,
                                const std::vector<const xmlNode*>& old) const {
    std::vector<std::size_t> partner(now.size(), kNone);
    std::size_t head = 0;
    while (head < now.size() && head < old.size() && Same(now[head], old[head], numbers_)) {
      partner[head] = head;
      ++head;
    }
    std::size_t tail = 0;
    while (tail < now.size() - head && tail < old.size() - head &&
           Same(now[now.size() - 1 - tail], old[old.size() - 1 - tail], numbers_)) {
      partner[now.size() - 1 - tail] = old.size() - 1 - tail;
      ++tail;
    }
    PairMiddle(now, old, head, now.size() - tail, old.size() - tail, partner);
    return partner;
  }

  void PairMiddle(const std::vector<const xmlNode*>& now, const std::vector<const xmlNode*>& old,
                  std::size_t head, std::size_t nowEnd, std::size_t oldEnd,
                  std::vector<std::size_t>& partner) const {
    std::unordered_map<std::string, std::vector<std::size_t>> places;
    for (std::size_t k = oldEnd; k-- > head;) places[Digest(old[k])].push_back(k);
    std::size_t next = head;
    std::size_t gap = head;
    for (std::size_t i = head; i < nowEnd; ++i) {
      const auto found = places.find(Digest(now[i]));
      if (found == places.end()) continue;
      auto& ks = found->second;
      while (!ks.empty() && ks.back() < next) ks.pop_back();
      if (ks.empty()) continue;
      PairByName(now, old, gap, i, next, ks.back(), partner);
      partner[i] = ks.back();
      next = ks.back() + 1;
      gap = i + 1;
    }
    PairByName(now, old, gap, nowEnd, next, oldEnd, partner);
  }

  static void PairByName(const std::vector<const xmlNode*>& now,
                         const std::vector<const xmlNode*>& old, std::size_t i, std::size_t nowEnd,
                         std::size_t k, std::size_t oldEnd, std::vector<std::size_t>& partner) {
    for (; i < nowEnd; ++i) {
      std::size_t candidate = k;
      while (candidate < oldEnd && View(old[candidate]->name) != View(now[i]->name)) ++candidate;
      if (candidate == oldEnd) continue;
      partner[i] = candidate;
      k = candidate + 1;
    }
  }

  /// A text that is equal only when the content is; numbers stand in their shortest form.
  std::string Digest(const xmlNode* node) const {
    Writer writer({}, numbers_);
    writer.Write(node, 0, nullptr);
    return writer.Take();
  }

  std::string_view bytes_;
  const NumericFields& numbers_;
  std::string out_;
};

int Level(const xmlNode* node) {
  int level = 0;
  for (node = node->parent; node && node->type == XML_ELEMENT_NODE; node = node->parent) ++level;
  return level;
}

}  // namespace

bool SameContent(Element a, Element b, const NumericFields& numbers) {
  return Same(a.Node(), b.Node(), numbers);
}

std::string MergeSource(Element now, Element before, const SourceElement& place,
                        std::string_view bytes, const NumericFields& numbers) {
  Writer writer(bytes, numbers);
  writer.Merge(now.Node(), before.Node(), place, Level(before.Node()));
  return writer.Take();
}

std::string NewSource(Element now, int level, const NumericFields& numbers) {
  Writer writer({}, numbers);
  writer.Write(now.Node(), level, nullptr);
  return writer.Take();
}

}  // namespace platform::xml
