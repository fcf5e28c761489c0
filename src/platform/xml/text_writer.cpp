// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <libxml/tree.h>

#include <array>
#include <cstring>
#include <initializer_list>
#include <string>
#include <utility>

#include "platform/xml/document.h"

namespace platform::xml {
namespace {

// What a byte becomes where it cannot stand as it is; null for itself.
using Escapes = std::array<const char*, 256>;

constexpr Escapes TextEscapes() {
  Escapes escapes{};
  escapes['&'] = "&amp;";
  escapes['<'] = "&lt;";
  escapes['>'] = "&gt;";
  escapes['\r'] = "&#13;";
  return escapes;
}

constexpr Escapes AttributeEscapes() {
  Escapes escapes = TextEscapes();
  escapes['"'] = "&quot;";
  // A reader turns them into blanks when they stand as they are.
  escapes['\n'] = "&#10;";
  escapes['\t'] = "&#9;";
  return escapes;
}

constexpr Escapes kInText = TextEscapes();
constexpr Escapes kInAttribute = AttributeEscapes();

const char* Chars(const xmlChar* text) {
  return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

bool IsText(const xmlNode* node) {
  return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE ||
         node->type == XML_ENTITY_REF_NODE;
}

bool IsWhiteSpace(const xmlNode* node) {
  return node->type == XML_TEXT_NODE &&
         Chars(node->content)[std::strspn(Chars(node->content), " \t\r\n")] == '\0';
}

/// libxml2 keeps an ampersand in a namespace's name, and only there, as it reads it from "&amp;".
std::string NamespaceName(const xmlNs& ns) {
  constexpr std::string_view kAmpersand = "&#38;";
  std::string name = Chars(ns.href);
  for (auto at = name.find(kAmpersand); at != name.npos; at = name.find(kAmpersand, at + 1))
    name.replace(at, kAmpersand.size(), "&");
  return name;
}

bool PreservesSpace(const xmlNode* element) {
  for (const xmlAttr* a = element->properties; a != nullptr; a = a->next)
    if (a->ns != nullptr && xmlStrEqual(a->name, BAD_CAST "space") &&
        xmlStrEqual(a->ns->href, XML_XML_NAMESPACE))
      return a->children != nullptr && xmlStrEqual(a->children->content, BAD_CAST "preserve");
  return false;
}

/// Whether white space of our own between the children would change what the element says.
bool IsMixed(const xmlNode* element) {
  const xmlNode* child = element->children;
  while (child != nullptr && (!IsText(child) || IsWhiteSpace(child))) child = child->next;
  return child != nullptr || PreservesSpace(element);
}

/// Writes a tree without recursion: a tree that was made here may be deep.
class Writer {
 public:
  explicit Writer(TextForm form) : indents_(form == TextForm::kIndented) {}

  void Declaration() {
    if (indents_) text_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  }

  void LineEnd() {
    if (indents_) text_ += '\n';
  }

  void Tree(const xmlNode* top) {
    const xmlNode* node = top;
    for (;;) {
      if (Open(node)) {
        node = node->children;
        continue;
      }
      while (node != top && node->next == nullptr) {
        node = node->parent;
        Close(node);
      }
      if (node == top) return;
      node = node->next;
    }
  }

  std::string Take() { return std::move(text_); }

 private:
  /// Writes a node's own text; true when its children come next.
  bool Open(const xmlNode* node) {
    if (depth_ > 0 && !IsText(node)) Indent(node->prev);
    switch (node->type) {
      case XML_ELEMENT_NODE:
        return OpenElement(node);
      case XML_TEXT_NODE:
        Escaped(Chars(node->content), kInText);
        break;
      case XML_CDATA_SECTION_NODE:
        Put({"<![CDATA[", Chars(node->content), "]]>"});
        break;
      case XML_COMMENT_NODE:
        Put({"<!--", Chars(node->content), "-->"});
        break;
      case XML_PI_NODE:
        Put({"<?", Chars(node->name), node->content == nullptr ? "" : " ", Chars(node->content),
             "?>"});
        break;
      case XML_ENTITY_REF_NODE:
        Put({"&", Chars(node->name), ";"});
        break;
      case XML_DTD_NODE:
        Put({"<!DOCTYPE ", Chars(node->name), ">"});
        break;
      default:
        break;
    }
    return false;
  }

  bool OpenElement(const xmlNode* element) {
    text_ += '<';
    Name(element->ns, element->name);
    for (const xmlNs* ns = element->nsDef; ns != nullptr; ns = ns->next) Namespace(*ns);
    for (const xmlAttr* a = element->properties; a != nullptr; a = a->next) Attribute(*a);
    text_ += element->children == nullptr ? "/>" : ">";
    if (element->children == nullptr) return false;
    ++depth_;
    if (indents_ && mixedDepth_ == 0 && IsMixed(element)) mixedDepth_ = depth_;
    return true;
  }

  void Close(const xmlNode* element) {
    const std::size_t inside = depth_--;
    if (mixedDepth_ == 0) Indent(element->last);
    if (mixedDepth_ == inside) mixedDepth_ = 0;
    text_ += "</";
    Name(element->ns, element->name);
    text_ += '>';
  }

  /// A line end and the blanks of this depth, unless white space of the tree stands there already.
  void Indent(const xmlNode* before) {
    if (!indents_ || mixedDepth_ != 0 || (before != nullptr && IsText(before))) return;
    text_ += '\n';
    text_.append(2 * depth_, ' ');
  }

  void Namespace(const xmlNs& ns) {
    Put({ns.prefix == nullptr ? " xmlns" : " xmlns:", Chars(ns.prefix), "=\""});
    Escaped(NamespaceName(ns).c_str(), kInAttribute);
    text_ += '"';
  }

  void Attribute(const xmlAttr& attribute) {
    text_ += ' ';
    Name(attribute.ns, attribute.name);
    text_ += "=\"";
    for (const xmlNode* part = attribute.children; part != nullptr; part = part->next)
      Escaped(Chars(part->content), kInAttribute);
    text_ += '"';
  }

  void Name(const xmlNs* ns, const xmlChar* name) {
    if (ns != nullptr && ns->prefix != nullptr) Put({Chars(ns->prefix), ":"});
    text_ += Chars(name);
  }

  void Put(std::initializer_list<const char*> parts) {
    for (const char* part : parts) text_ += part;
  }

  void Escaped(const char* text, const Escapes& escapes) {
    const char* run = text;
    for (; *text != '\0'; ++text) {
      const char* escape = escapes[static_cast<unsigned char>(*text)];
      if (escape == nullptr) continue;
      text_.append(run, text).append(escape);
      run = text + 1;
    }
    text_.append(run, text);
  }

  std::string text_;
  bool indents_;
  std::size_t depth_ = 0;
  // The depth of the outermost open element with mixed content; 0 outside of one.
  std::size_t mixedDepth_ = 0;
};

}  // namespace

std::string Document::ToText(TextForm form) const {
  Writer writer(form);
  writer.Declaration();
  for (const xmlNode* node = tree_->children; node != nullptr; node = node->next) {
    writer.Tree(node);
    writer.LineEnd();
  }
  return writer.Take();
}

std::string ToText(Element element, TextForm form) {
  Writer writer(form);
  if (element) writer.Tree(element.Node());
  if (element) writer.LineEnd();
  return writer.Take();
}

}  // namespace platform::xml
